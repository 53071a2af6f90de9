#include <algorithm>
#include <utility>

#include <wx/radiobut.h>
#ifdef __WXGTK__
#include <gtk/gtk.h>
#endif

#include "desktop/ControlView.h"
#include "desktop/ScreenDialog.h"
#include "desktop/Text.h"
#include "screens/OptionButton.h"

namespace tsln::desktop {
namespace {

/// The first enabled and visible button of the group; null when there is none.
const OptionButton* firstUsable(const OptionGroup& group) {
    const auto found = std::ranges::find_if(
        group.buttons(), [](const OptionButton* button) { return button->enabled() && button->visible(); });
    return found == group.buttons().end() ? nullptr : *found;
}

/// Whether Tab goes to this button: the chosen one of its group, or else the first usable one.
bool isStopOfGroup(const OptionButton& button) {
    const OptionGroup& group = button.group();
    return group.selected() ? button.selected() : firstUsable(group) == &button;
}

class RadioButton : public wxRadioButton {
  public:
    /// wxRB_SINGLE: the toolkit groups only adjacent buttons and always has one of a group chosen.
    RadioButton(wxWindow* parent, const OptionButton& button)
        : wxRadioButton(parent, wxID_ANY, toWx(button.caption()), wxDefaultPosition, wxDefaultSize,
                        wxRB_SINGLE),
          button_(button) {}

    /// Not called on GTK, which moves the keyboard focus itself.
    bool AcceptsFocusFromKeyboard() const override {
        return wxRadioButton::AcceptsFocusFromKeyboard() && isStopOfGroup(button_);
    }

  private:
    const OptionButton& button_;
};

class OptionButtonView : public ControlView {
  public:
    OptionButtonView(ScreenDialog& dialog, wxWindow* parent, OptionButton& button)
        : ControlView(dialog, button), button_(button), window_(new RadioButton(parent, button)) {
        setWindow(window_);
        joinGroup();
        window_->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) {
            clicked_ = true;
            act([] {});
        });
    }

    void settle() override {
        // The window's state is not read: before a redraw, two windows of a group may show as chosen.
        if (std::exchange(clicked_, false)) button_.userSelect();
    }

    bool isTabStop() const override { return isStopOfGroup(button_); }
    wxString caption() const override { return toWx(button_.caption()); }
    void mnemonic() override { choose(); }

    /// The arrow keys choose a button of the group.
    bool takesKey(const wxKeyEvent& key) override {
        if (key.HasAnyModifiers()) return false;
        switch (key.GetKeyCode()) {
            case WXK_DOWN:
            case WXK_RIGHT:
                chooseNext(1);
                return true;
            case WXK_UP:
            case WXK_LEFT:
                chooseNext(-1);
                return true;
            default:
                return false;
        }
    }

  private:
    void choose() {
        takeFocus();
        act([this] { button_.userSelect(); });
    }

    void chooseNext(int step) {
        const auto& buttons = button_.group().buttons();
        const auto count = static_cast<int>(buttons.size());
        const auto here = static_cast<int>(std::ranges::find(buttons, &button_) - buttons.begin());
        for (int i = 1; i < count; ++i) {
            OptionButton& next = *buttons[static_cast<std::size_t>((here + step * i + count * i) % count)];
            auto* view = static_cast<OptionButtonView*>(dialog().viewOf(next));
            if (view && next.enabled() && next.visible()) return view->choose();
        }
    }

    void updateContent() override {
        if (button_.selected() != window_->GetValue()) show(button_.selected());
        const wxString caption = toWx(button_.caption());
        if (caption == window_->GetLabel()) return;
        window_->SetLabel(caption);
        dialog().layoutChanged();
    }

#ifdef __WXGTK__
    /// Joins the platform's own group, so that Tab goes to the chosen button. The group has a hidden button,
    /// which is chosen while none of the others is.
    void joinGroup() {
        for (const OptionButton* other : button_.group().buttons()) {
            if (const auto* view = static_cast<OptionButtonView*>(dialog().viewOf(*other))) {
                none_ = view->none_;
                break;
            }
        }
        if (!none_) {
            auto* none = GTK_WIDGET(g_object_ref_sink(gtk_radio_button_new(nullptr)));
            none_.reset(none, [](GtkWidget* widget) {
                gtk_widget_destroy(widget);
                g_object_unref(widget);
            });
        }
        gtk_radio_button_join_group(GTK_RADIO_BUTTON(window_->GetHandle()), GTK_RADIO_BUTTON(none_.get()));
    }
    void show(bool chosen) {
        if (chosen) {
            window_->SetValue(true);
        } else if (!button_.group().selected()) {
            gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(none_.get()), true);
        }
    }
    std::shared_ptr<GtkWidget> none_;
#else
    void joinGroup() {}
    void show(bool chosen) {
        window_->SetValue(chosen);
    }
#endif

    OptionButton& button_;
    RadioButton* window_;
    bool clicked_ = false;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, OptionButton& button) {
    return std::make_unique<OptionButtonView>(dialog, parent, button);
}

}  // namespace tsln::desktop
