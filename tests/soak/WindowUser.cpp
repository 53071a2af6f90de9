#include "tests/soak/WindowUser.h"

#include <algorithm>
#include <gtk/gtk.h>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include <wx/app.h>
#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/init.h>
#include <wx/print.h>
#include <wx/toplevel.h>

#include "desktop/Text.h"
#include "desktop/WxDesktop.h"
#include "screens/Job.h"
#include "tests/soak/Diary.h"
#include "tests/soak/Soak.h"
#include "tests/soak/WindowActs.h"

namespace tsln::soak {
namespace {

using desktop::ScreenDialog;

constexpr std::size_t deepest = 5;  // screens above each other; a further one is left at once
constexpr int triesAtOnce = 20;
constexpr int triesToLeave = 1000;  // 20 seconds
constexpr unsigned whileBusy = 20;  // milliseconds between looks at a program that is busy
constexpr auto timeToComeUp = std::chrono::milliseconds(80);  // for a window to get the keyboard

constexpr int mostTurnsWithoutInput = 250;

/// The program's window for one of the toolkit; null when it is the toolkit's own.
wxTopLevelWindow* windowOf(GtkWindow* handle) {
    for (wxWindow* window : wxTopLevelWindows)
        if (handle && window->GetHandle() == GTK_WIDGET(handle))
            return dynamic_cast<wxTopLevelWindow*>(window);
    return nullptr;
}

/// The enabled buttons of a dialog. Of a print preview only those that turn pages: there is no printer to answer for, and
/// the toolkit keeps the glyphs of each zoom.
void collectButtons(wxWindow& window, std::vector<wxButton*>& buttons) {
    for (wxWindow* child : window.GetChildren()) {
        auto* button = dynamic_cast<wxButton*>(child);
        constexpr int pages[] = {wxID_PREVIEW_FIRST, wxID_PREVIEW_LAST, wxID_PREVIEW_NEXT,
                                 wxID_PREVIEW_PREVIOUS};
        const bool wanted = !dynamic_cast<wxPreviewFrame*>(wxGetTopLevelParent(&window)) ||
                            (button && std::ranges::count(pages, button->GetId()) > 0);
        if (button && button->IsEnabled() && wanted) buttons.push_back(button);
        collectButtons(*child, buttons);
    }
}

/// The toolkit keeps the shapes of texts and letters in all their scripts, and computed styles, without a limit.
void dropToolkitCaches() {
    pango_fc_font_map_cache_clear(PANGO_FC_FONT_MAP(pango_cairo_font_map_get_default()));
    gtk_style_context_reset_widgets(gdk_screen_get_default());
}

/// Windows as they are, but files are chosen at once, and no other program is started.
class SoakDesktop : public desktop::WxDesktop {
  public:
    SoakDesktop(RandomUser& user, const std::string& folder, ComponentFactory components)
        : WxDesktop(std::move(components), folder + "/settings"), user_(user), folder_(folder) {}

    std::optional<std::string> openFile(Screen&, std::string_view, std::span<const FileFilter>) override {
        return someFile();
    }
    std::optional<std::string> saveFile(Screen&, std::string_view, std::span<const FileFilter>,
                                        std::string_view) override {
        return someFile();
    }
    ProcessEnd runAndWait(std::string_view) override { return {.started = true}; }
    bool shellOpen(std::string_view, std::string_view) override { return user_.random.chance(50); }
    std::string applicationFolder() override { return folder_; }

  private:
    std::optional<std::string> someFile() {
        user_.note("chooses a file");
        if (user_.random.chance(20)) return std::nullopt;
        return user_.path(folder_);
    }

    RandomUser& user_;
    const std::string folder_;
};

}  // namespace

WindowUser::WindowUser(RandomUser& user, std::function<void()> callOperation)
    : user_(user), callOperation_(std::move(callOperation)) {
    schedule(0);
}

WindowUser::~WindowUser() {
    g_source_remove(source_);
}

void WindowUser::schedule(unsigned milliseconds) {
    const auto onTime = [](gpointer self) -> gboolean {
        static_cast<WindowUser*>(self)->turn();
        return G_SOURCE_REMOVE;
    };
    source_ = milliseconds == 0 ? g_idle_add_full(G_PRIORITY_LOW, onTime, this, nullptr)
                                : g_timeout_add(milliseconds, onTime, this);
}

void WindowUser::slowDown() {
    g_source_remove(source_);
    schedule(whileBusy);
}

void WindowUser::turn() {
    wxTopLevelWindow* const front = windowOf(windowWithInput());
    auto* const dialog = dynamic_cast<ScreenDialog*>(front);
    const bool busy = desktop::WxDesktop::dropsInput() || (dialog && dialog->screen().job());
    // The next turn first: an act may open a window, and returns only when that is closed.
    schedule(busy || !windowWithInput() ? whileBusy : 0);
    if (desktop::WxDesktop::dropsInput()) return;
    if (windowWithInput()) withoutInput_ = 0;
    if (GtkMenuShell* menu = openMenu()) return workMenu(*menu);
    if (dialog) return workScreen(*dialog);
    if (front) return workDialog(*front);
    GtkWindow* const own = windowWithInput();
    if (!own) {
        if (++withoutInput_ > mostTurnsWithoutInput)
            diary::fail("a screen is open, but the windows below it can be used");
        return;
    }
    user_.note("answers a dialog of the toolkit");
    if (GTK_IS_DIALOG(own)) {
        gtk_dialog_response(GTK_DIALOG(own), user_.random.chance(60) ? GTK_RESPONSE_OK : GTK_RESPONSE_CANCEL);
    } else {
        pressKey(own, GDK_KEY_Escape);
    }
}

void WindowUser::workMenu(GtkMenuShell& menu) {
    GList* const items = gtk_container_get_children(GTK_CONTAINER(&menu));
    std::vector<GtkWidget*> enabled;
    for (GList* item = items; item; item = item->next) {
        auto* const widget = GTK_WIDGET(item->data);
        if (GTK_IS_MENU_ITEM(widget) && gtk_widget_is_sensitive(widget) && gtk_widget_get_visible(widget) &&
            !GTK_IS_SEPARATOR_MENU_ITEM(widget) && !gtk_menu_item_get_submenu(GTK_MENU_ITEM(widget)))
            enabled.push_back(widget);
    }
    g_list_free(items);
    if (enabled.empty() || user_.random.chance(20)) {
        user_.note("closes a menu");
        return gtk_menu_shell_cancel(&menu);
    }
    GtkWidget* const item = user_.random.of(enabled);
    const char* const label = gtk_menu_item_get_label(GTK_MENU_ITEM(item));
    user_.note("chooses '" + std::string(label ? label : "") + "' in a menu");
    gtk_menu_shell_activate_item(&menu, item, TRUE);
}

WindowUser::Visit& WindowUser::visitOf(wxWindow& window, int patience) {
    // A new window often lies where one was destroyed: the pointer alone does not tell them apart.
    std::erase_if(visits_, [](const auto& visit) { return !visit.second.window; });
    return visits_.try_emplace(&window, Visit{patience, &window}).first->second;
}

void WindowUser::workScreen(ScreenDialog& dialog) {
    Visit& visit = visitOf(dialog, visits_.size() > deepest ? 0 : 2 * user_.patience());
    if (!gtk_window_is_active(GTK_WINDOW(dialog.GetHandle())) && Clock::now() - visit.since < timeToComeUp)
        return;
    if (--visit.left < 0) return leave(dialog, visit);
    const std::string name = dialog.screen().name();
    if (user_.random.chance(1)) return callOperation_();
    WindowAct act;
    if (user_.random.chance(10)) {
        act = someKey(user_.random, dialog);
    } else if (user_.random.chance(2)) {
        const wxSize size(user_.random.between(50, 1400), user_.random.between(50, 1000));
        act = {"is resized", [&dialog, size] { dialog.SetSize(size); }};
    } else if (Control* control = user_.someControl(dialog.screen())) {
        act = someAct(user_.random, dialog, *control);
        if (act.act) act.what = control->name() + ": " + act.what;
    } else {
        act = {"close box", [&dialog] { dialog.Close(); }};
    }
    if (!act.act) return;
    user_.note(name + "." + act.what);
    act.act();
}

void WindowUser::leave(ScreenDialog& dialog, Visit& visit) {
    if (visit.left < -triesToLeave) diary::fail(dialog.screen().name() + " does not close");
    if (visit.left < -triesAtOnce) slowDown();  // an act may still be at work
    if (user_.random.chance(70)) {
        user_.note(dialog.screen().name() + ": Esc");
        pressKey(GTK_WINDOW(dialog.GetHandle()), GDK_KEY_Escape);
    } else {
        user_.note(dialog.screen().name() + ": close box");
        dialog.Close();
    }
}

void WindowUser::workDialog(wxTopLevelWindow& window) {
    Visit& visit = visitOf(window, 10);
    const std::string title = desktop::fromWx(window.GetTitle());
    if (--visit.left < -triesToLeave) diary::fail("'" + title + "' does not close");
    if (visit.left < -triesAtOnce) slowDown();
    std::vector<wxButton*> buttons;
    collectButtons(window, buttons);
    const auto handle = GTK_WINDOW(window.GetHandle());
    if (visit.left < 0) {
        user_.note("'" + title + "' is closed");
        window.Close();
    } else if (!buttons.empty() && user_.random.chance(70)) {
        wxButton* const button = user_.random.of(buttons);
        user_.note("'" + title + "': " + desktop::fromWx(button->GetLabelText()));
        gtk_button_clicked(GTK_BUTTON(button->GetHandle()));
    } else {
        constexpr guint keys[] = {GDK_KEY_Escape, GDK_KEY_Down,      GDK_KEY_Left,
                                  GDK_KEY_Tab,    GDK_KEY_Page_Down, GDK_KEY_Return};
        const bool preview = dynamic_cast<wxPreviewFrame*>(&window);
        const guint key = preview ? GDK_KEY_Escape : user_.random.of(keys);
        user_.note("'" + title + "': " + gdk_keyval_name(key));
        pressKey(handle, key);
    }
}

void runWindows(RandomUser& user, const std::string& folder, std::size_t acts) {
    int none = 0;
    wxApp::SetInstance(new wxApp);
    if (!wxEntryStart(none, static_cast<wxChar**>(nullptr))) diary::fail("there is no display");
    wxTheApp->CallOnInit();
    wxTheApp->SetExitOnFrameDelete(false);
    // The toolkit keeps a picture of each mark in each colour of a transition, without a limit.
    g_object_set(gtk_settings_get_default(), "gtk-enable-animations", FALSE, nullptr);
    wxSetAssertHandler([](const wxString& file, int line, const wxString&, const wxString& condition,
                          const wxString& message) {
        diary::fail(desktop::fromWx(wxString::Format("%s:%d: %s %s", file, line, condition, message)));
    });
    Soak* running = nullptr;
    {
        Soak soak(user, folder, [&](Soak::ComponentFactory components) {
            return std::make_unique<SoakDesktop>(user, folder, std::move(components));
        });
        running = &soak;
        const WindowUser windowUser(user, [&] { running->callOperation(); });
        // The allocator counts 40 bytes more for each act, although no more is allocated, as heaptrack shows: 7.2 MB
        // after 2,000 acts, 6.7 MB after 8,000.
        soak.run(acts, 64, dropToolkitCaches);
    }
    wxEntryCleanup();
}

}  // namespace tsln::soak
