#include "desktop/NativeWindow.h"

#include <string>

#include <wx/textctrl.h>
#include <wx/toplevel.h>
#include <wx/window.h>
#if wxUSE_ACCESSIBILITY
#include <wx/access.h>
#endif

#ifdef __WXGTK__
#include <gtk/gtk.h>
#endif

#include "desktop/Text.h"

namespace tsln::desktop {

void leaveOutOfTabOrder(wxWindow& window) {
    // Each platform supports only one of these.
    window.SetCanFocus(false);
    window.DisableFocusFromKeyboard();
}

#ifdef __WXGTK__

void setAccessibleName(wxWindow& window, const wxString& name) {
    window.SetName(name);
    if (!window.GetHandle()) return;
    if (AtkObject* accessible = gtk_widget_get_accessible(window.GetHandle())) {
        atk_object_set_name(accessible, fromWx(name).c_str());
    }
}

bool hasKeyboard(const wxWindow& window) {
    const wxWindow* top = wxGetTopLevelParent(const_cast<wxWindow*>(&window));
    if (!top || !top->GetHandle() || !window.GetHandle()) return false;
    GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(top->GetHandle()));
    return focus && (focus == window.GetHandle() || gtk_widget_is_ancestor(focus, window.GetHandle()));
}

void setTextMargin(wxTextCtrl& text, int pixels) {
    GtkWidget* view = gtk_bin_get_child(GTK_BIN(text.GetHandle()));
    gtk_text_view_set_left_margin(GTK_TEXT_VIEW(view), pixels);
    gtk_text_view_set_right_margin(GTK_TEXT_VIEW(view), pixels);
    gtk_text_view_set_top_margin(GTK_TEXT_VIEW(view), pixels / 2);
}

#else

#if wxUSE_ACCESSIBILITY
namespace {

class NamedAccessible : public wxAccessible {
  public:
    NamedAccessible(wxWindow* window, wxString name) : wxAccessible(window), name_(std::move(name)) {}
    wxAccStatus GetName(int child, wxString* name) override {
        if (child != 0) return wxACC_NOT_IMPLEMENTED;
        *name = name_;
        return wxACC_OK;
    }

  private:
    wxString name_;
};

}  // namespace
#endif

void setAccessibleName(wxWindow& window, const wxString& name) {
    window.SetName(name);
#if wxUSE_ACCESSIBILITY
    window.SetAccessible(new NamedAccessible(&window, name));
#endif
}

bool hasKeyboard(const wxWindow& window) {
    for (const wxWindow* at = wxWindow::FindFocus(); at; at = at->GetParent()) {
        if (at == &window) return true;
    }
    return false;
}

void setTextMargin(wxTextCtrl& text, int pixels) {
    text.SetMargins(pixels);
}

#endif

}  // namespace tsln::desktop
