#include "tests/soak/WindowActs.h"

#include <wx/bookctrl.h>
#include <wx/dataview.h>
#include <wx/hyperlink.h>
#include <wx/splitter.h>
#include <wx/textentry.h>

#include "desktop/Text.h"
#include "screens/CheckList.h"
#include "screens/ColorBox.h"
#include "screens/DateBox.h"
#include "screens/MarkupLabel.h"
#include "screens/OptionButton.h"
#include "screens/ReportControl.h"
#include "screens/Splitter.h"
#include "screens/TabControl.h"
#include "tests/soak/GtkInput.h"

namespace tsln::soak {
namespace {

using desktop::ControlView;
using desktop::ScreenDialog;

constexpr GdkModifierType none{};

struct Key {
    guint code;
    GdkModifierType modifiers = none;
    const char* name;
};
constexpr Key listKeys[] = {
    {GDK_KEY_Down, none, "Down"},
    {GDK_KEY_Down, none, "Down"},
    {GDK_KEY_Up, none, "Up"},
    {GDK_KEY_Home, none, "Home"},
    {GDK_KEY_End, none, "End"},
    {GDK_KEY_Page_Down, none, "PgDn"},
    {GDK_KEY_Page_Up, none, "PgUp"},
    {GDK_KEY_Right, none, "Right"},
    {GDK_KEY_Left, none, "Left"},
    {GDK_KEY_Down, GDK_SHIFT_MASK, "Shift+Down"},
    {GDK_KEY_a, GDK_CONTROL_MASK, "Ctrl+A"},
    {GDK_KEY_space, none, "Space"},
    {GDK_KEY_space, GDK_CONTROL_MASK, "Ctrl+Space"},
    {GDK_KEY_Return, none, "Enter"},
    {GDK_KEY_Insert, none, "Ins"},
    {GDK_KEY_Delete, none, "Del"},
    {GDK_KEY_F2, none, "F2"},
    {GDK_KEY_Tab, none, "Tab"},
    {GDK_KEY_ISO_Left_Tab, GDK_SHIFT_MASK, "Shift+Tab"},
    {GDK_KEY_Escape, none, "Esc"},
    {GDK_KEY_F10, GDK_SHIFT_MASK, "Shift+F10"},
    {GDK_KEY_s, none, "S"},
    {GDK_KEY_5, none, "5"},
};
constexpr Key textKeys[] = {
    {GDK_KEY_a, none, "A"},          {GDK_KEY_5, none, "5"},
    {GDK_KEY_period, none, "."},     {GDK_KEY_minus, none, "-"},
    {GDK_KEY_apostrophe, none, "'"}, {GDK_KEY_BackSpace, none, "Backspace"},
    {GDK_KEY_Delete, none, "Del"},   {GDK_KEY_Left, GDK_SHIFT_MASK, "Shift+Left"},
    {GDK_KEY_Home, none, "Home"},    {GDK_KEY_a, GDK_CONTROL_MASK, "Ctrl+A"},
    {GDK_KEY_Down, none, "Down"},    {GDK_KEY_Return, none, "Enter"},
};
constexpr Key dialogKeys[] = {
    {GDK_KEY_Tab, none, "Tab"},
    {GDK_KEY_Tab, none, "Tab"},
    {GDK_KEY_ISO_Left_Tab, GDK_SHIFT_MASK, "Shift+Tab"},
    {GDK_KEY_F6, none, "F6"},
    {GDK_KEY_F6, GDK_SHIFT_MASK, "Shift+F6"},
    {GDK_KEY_Page_Down, GDK_CONTROL_MASK, "Ctrl+PgDn"},
    {GDK_KEY_Page_Up, GDK_CONTROL_MASK, "Ctrl+PgUp"},
    {GDK_KEY_F1, none, "F1"},
    {GDK_KEY_Return, none, "Enter"},
};

GtkWindow* handleOf(const ScreenDialog& dialog) {
    return GTK_WINDOW(dialog.GetHandle());
}

/// Chooses what the user does to the window of each kind of control.
class Choosing : public ControlVisitor {
  public:
    Choosing(test::Random& random, ScreenDialog& dialog, ControlView& view)
        : random_(random), dialog_(dialog), view_(view) {}

    WindowAct chosen;

    void visit(TextBox& box) override {
        if (box.onContextMenu && random_.chance(10)) return key({GDK_KEY_F10, GDK_SHIFT_MASK, "Shift+F10"});
        if (random_.chance(40)) return key(random_.of(textKeys));
        if (!box.locked()) type(view_.inputWindow());
    }
    void visit(ComboBox& box) override {
        if (box.editable && random_.chance(60)) return type(view_.inputWindow());
        if (random_.chance(30)) return key(random_.of(textKeys));
        if (box.entries().empty()) return;
        const int index = static_cast<int>(random_.below(box.entries().size()));
        will("chooses " + std::to_string(index),
             [this, index] { gtk_combo_box_set_active(GTK_COMBO_BOX(view_.window().GetHandle()), index); });
    }
    void visit(DateBox&) override {
        if (random_.chance(80)) return type(view_.inputWindow());
        key({GDK_KEY_F4, none, "F4"});
    }
    void visit(Button&) override { press("is pressed"); }
    void visit(CheckBox&) override { press("is ticked or cleared"); }
    void visit(OptionButton&) override { press("is chosen"); }
    void visit(ColorBox&) override { press("is pressed"); }
    void visit(CheckList&) override { workRows(); }
    void visit(ReportControl&) override { workRows(); }
    void visit(PropertyGrid&) override { workRows(); }
    void visit(TabControl& tabs) override {
        auto* book = dynamic_cast<wxBookCtrlBase*>(&view_.window());
        if (!book || book->GetPageCount() == 0) return;
        const std::size_t page = random_.below(book->GetPageCount());
        will("turns from page " + std::to_string(tabs.selected()),
             [book, page] { book->SetSelection(page); });
    }
    void visit(Splitter&) override {
        auto* splitter = dynamic_cast<wxSplitterWindow*>(&view_.window());
        if (!splitter) return;
        const int position = random_.between(0, 800);
        will("is moved", [splitter, position] {
            wxSplitterEvent event(wxEVT_SPLITTER_SASH_POS_CHANGED, splitter);
            event.SetSashPosition(position);
            splitter->ProcessWindowEvent(event);
        });
    }
    void visit(MarkupLabel&) override {
        std::vector<wxHyperlinkCtrl*> links;
        for (wxWindow* child : view_.window().GetChildren())
            if (auto* link = dynamic_cast<wxHyperlinkCtrl*>(child)) links.push_back(link);
        if (links.empty()) return;
        wxHyperlinkCtrl* const link = random_.of(links);
        will("follows a link", [link] {
            wxHyperlinkEvent event(link, link->GetId(), link->GetURL());
            link->ProcessWindowEvent(event);
        });
    }
    void visit(CommandBars&) override {}
    void visit(Frame&) override {}
    void visit(Label&) override {}
    void visit(Picture&) override {}
    void visit(ProgressBar&) override {}

  private:
    void will(std::string what, std::function<void()> how) { chosen = {std::move(what), std::move(how)}; }

    void press(const char* what) {
        GtkWidget* const widget = view_.window().GetHandle();
        if (!GTK_IS_BUTTON(widget)) return;
        will(what, [this, widget] {
            if (random_.chance(50)) {
                view_.inputWindow().SetFocus();
                pressKey(handleOf(dialog_), GDK_KEY_space);
            } else {
                gtk_button_clicked(GTK_BUTTON(widget));
            }
        });
    }
    void key(const Key& key) {
        will(key.name, [this, key] {
            view_.inputWindow().SetFocus();
            pressKey(handleOf(dialog_), key.code, key.modifiers);
        });
    }
    void type(wxWindow& window) {
        auto* const entry = dynamic_cast<wxTextEntry*>(&window);
        if (!entry) return;
        const std::string text = random_.text();
        const bool whole = random_.chance(70);
        will("'" + text + "'", [&window, entry, text, whole] {
            window.SetFocus();
            if (whole) {
                entry->SetValue(desktop::toWx(text));
            } else {
                entry->WriteText(desktop::toWx(text));
            }
        });
    }
    void workRows() {
        auto* const grid = dynamic_cast<wxDataViewCtrl*>(&view_.inputWindow());
        if (!grid) {
            if (random_.chance(50)) key(random_.of(listKeys));
            return;
        }
        GtkTreeView* const tree = GTK_TREE_VIEW(grid->GtkGetTreeView());
        if (random_.chance(70)) return key(random_.of(listKeys));
        if (random_.chance(20)) {
            const int column = static_cast<int>(random_.below(grid->GetColumnCount()));
            return will("header " + std::to_string(column), [tree, column] {
                if (GtkTreeViewColumn* header = gtk_tree_view_get_column(tree, column))
                    gtk_tree_view_column_clicked(header);
            });
        }
        const int x = random_.between(1, 400), y = random_.between(1, 200), times = random_.between(1, 2);
        const guint button = random_.chance(20) ? 3 : 1;
        will(button == 3  ? "right click"
             : times == 2 ? "double click"
                          : "click",
             [=] {
                 click(GTK_WIDGET(tree), gtk_tree_view_get_bin_window(tree), x, y, button,
                       button == 3 ? 1 : times);
             });
    }

    test::Random& random_;
    ScreenDialog& dialog_;
    ControlView& view_;
};

}  // namespace

WindowAct someAct(test::Random& random, ScreenDialog& dialog, Control& control) {
    ControlView* const view = dialog.viewOf(control);
    if (!view || !dialog.takesInput(control) || !view->window().IsEnabled() ||
        !view->window().IsShownOnScreen())
        return {};
    // Kept by the act, which uses it.
    const auto choosing = std::make_shared<Choosing>(random, dialog, *view);
    control.accept(*choosing);
    if (!choosing->chosen.act) return {};
    const auto act = choosing->chosen.act;
    return {choosing->chosen.what, [choosing, act] { act(); }};
}

WindowAct someKey(test::Random& random, ScreenDialog& dialog) {
    if (random.chance(20)) {
        const auto letter = static_cast<guint>(GDK_KEY_a + random.below(26));
        return {std::string("Alt+") + static_cast<char>(letter),
                [&dialog, letter] { pressKey(handleOf(dialog), letter, GDK_MOD1_MASK); }};
    }
    const Key key = random.of(dialogKeys);
    return {key.name, [&dialog, key] { pressKey(handleOf(dialog), key.code, key.modifiers); }};
}

}  // namespace tsln::soak
