#include "desktop/NativeWindow.h"

#include <string>

#include <wx/clipbrd.h>
#include <wx/combobox.h>
#include <wx/dataobj.h>
#include <wx/dataview.h>
#include <wx/dialog.h>
#include <wx/settings.h>
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

wxColour failureColour() {
    const bool dark = wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX).GetLuminance() < 0.5;
    return dark ? wxColour(0xFF, 0x80, 0x80) : wxColour(0xB0, 0x20, 0x20);
}

void pasteAsOneLine(wxWindow& box, wxTextEntry& entry) {
    box.Bind(wxEVT_TEXT_PASTE, [&entry](wxClipboardTextEvent& event) {
        wxTextDataObject data;
        const wxClipboardLocker clipboard;
        if (!entry.IsEditable() || !clipboard || !wxTheClipboard->GetData(data) ||
            data.GetText().find_first_of("\r\n") == wxString::npos)
            return event.Skip();
        wxString text = data.GetText();
        text.Replace("\r\n", " ");
        text.Replace("\n", " ");
        text.Replace("\r", " ");
        entry.WriteText(text);
    });
}

#ifdef __WXGTK__

namespace {

/// The part of a window's widget that takes the keyboard: a scrolled text, a list, the entry of a combo box.
GtkWidget* inputPart(GtkWidget* widget) {
    const bool wraps = GTK_IS_SCROLLED_WINDOW(widget) ||
                       (GTK_IS_COMBO_BOX(widget) && gtk_combo_box_get_has_entry(GTK_COMBO_BOX(widget)));
    GtkWidget* const inner = wraps ? gtk_bin_get_child(GTK_BIN(widget)) : nullptr;
    return inner ? inner : widget;
}

}  // namespace

void setAccessibleName(wxWindow& window, const wxString& name) {
    window.SetName(name);
    if (!window.GetHandle()) return;
    for (GtkWidget* widget : {window.GetHandle(), inputPart(window.GetHandle())}) {
        // A scrolled window is no part of its own to a screen reader.
        if (GTK_IS_SCROLLED_WINDOW(widget)) continue;
        if (AtkObject* accessible = gtk_widget_get_accessible(widget))
            atk_object_set_name(accessible, fromWx(name).c_str());
    }
}

void leaveInnerButtonOutOfTabOrder(wxComboBox& box) {
    gtk_container_forall(
        GTK_CONTAINER(box.GetHandle()),
        [](GtkWidget* part, void*) {
            const auto leaveOut = [](GtkWidget* widget, void*) {
                if (GTK_IS_BUTTON(widget)) gtk_widget_set_can_focus(widget, FALSE);
            };
            leaveOut(part, nullptr);
            if (GTK_IS_CONTAINER(part)) gtk_container_forall(GTK_CONTAINER(part), leaveOut, nullptr);
        },
        nullptr);
}

bool hasKeyboard(const wxWindow& window) {
    const wxWindow* top = wxGetTopLevelParent(const_cast<wxWindow*>(&window));
    if (!top || !top->GetHandle() || !window.GetHandle()) return false;
    GtkWidget* focus = gtk_window_get_focus(GTK_WINDOW(top->GetHandle()));
    return focus && (focus == window.GetHandle() || gtk_widget_is_ancestor(focus, window.GetHandle()));
}

int boxHeight(const wxTextCtrl& box) {
    int least = 0, natural = 0;
    gtk_widget_get_preferred_height(box.GetHandle(), &least, &natural);
    return natural;
}

void setTextMargin(wxTextCtrl& text, int pixels) {
    GtkWidget* view = gtk_bin_get_child(GTK_BIN(text.GetHandle()));
    gtk_text_view_set_left_margin(GTK_TEXT_VIEW(view), pixels);
    gtk_text_view_set_right_margin(GTK_TEXT_VIEW(view), pixels);
    gtk_text_view_set_top_margin(GTK_TEXT_VIEW(view), pixels / 2);
}

void takeAllInput(wxDialog& dialog) {
    GtkWidget* const window = dialog.GetHandle();
    if (dialog.IsModal() && !gtk_widget_has_grab(window)) gtk_grab_add(window);
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

void leaveInnerButtonOutOfTabOrder(wxComboBox&) {}  // it never is a tab stop

void setAccessibleName(wxWindow& window, const wxString& name) {
    window.SetName(name);
    if (dynamic_cast<wxDataViewCtrl*>(&window))
        return;  // it has an accessible object with rows, which tells this name
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

int boxHeight(const wxTextCtrl& box) {
    return box.GetBestSize().y;
}

void setTextMargin(wxTextCtrl& text, int pixels) {
    text.SetMargins(pixels);
}

void takeAllInput(wxDialog&) {}  // the windows below stay disabled

#endif

}  // namespace tsln::desktop
