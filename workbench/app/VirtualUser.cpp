#include "workbench/app/VirtualUser.h"

#include <wx/uiaction.h>

#ifdef __WXGTK__
#include <gtk/gtk.h>
#else
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/image.h>
#include <wx/toplevel.h>
#endif

namespace tsln::workbench {

void press(int key, int modifiers) {
    wxUIActionSimulator user;
    user.Char(key, modifiers);
}

void type(const std::string& text) {
    for (const char c : text) {
        // Capitals and some signs need the shift key, which the simulator presses for letters only.
        const bool shifted = (c >= 'A' && c <= 'Z') ||
                             std::string_view("!@#$%^&*()_+{}|:\"<>?~").find(c) != std::string_view::npos;
        press(c, shifted ? wxMOD_SHIFT : wxMOD_NONE);
    }
}

#ifdef __WXGTK__

std::string activeWindowTitle() {
    std::string title;
    GList* windows = gtk_window_list_toplevels();
    for (GList* item = windows; item; item = item->next) {
        auto* window = GTK_WINDOW(item->data);
        const char* text = gtk_window_get_title(window);
        if (gtk_window_is_active(window) && text) title = text;
    }
    g_list_free(windows);
    return title;
}

bool popupIsOpen() {
    GtkWidget* grabbed = gtk_grab_get_current();
    return grabbed && GTK_IS_MENU(grabbed);
}

bool saveScreenshot(const std::string& path) {
    GdkWindow* root = gdk_get_default_root_window();
    GdkPixbuf* picture =
        gdk_pixbuf_get_from_window(root, 0, 0, gdk_window_get_width(root), gdk_window_get_height(root));
    if (!picture) return false;
    const bool saved = gdk_pixbuf_save(picture, path.c_str(), "png", nullptr, nullptr);
    g_object_unref(picture);
    return saved;
}

#else

std::string activeWindowTitle() {
    const auto* window = dynamic_cast<wxTopLevelWindow*>(wxGetActiveWindow());
    return window ? window->GetTitle().utf8_string() : std::string();
}

bool popupIsOpen() {
    return false;
}

bool saveScreenshot(const std::string& path) {
    wxScreenDC screen;
    const wxSize size = screen.GetSize();
    wxBitmap picture(size);
    wxMemoryDC memory(picture);
    const bool copied = memory.Blit(wxPoint(), size, &screen, wxPoint());
    memory.SelectObject(wxNullBitmap);
    return copied && picture.ConvertToImage().SaveFile(wxString::FromUTF8(path), wxBITMAP_TYPE_PNG);
}

#endif

}  // namespace tsln::workbench
