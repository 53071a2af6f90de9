#include "workbench/tour/VirtualUser.h"

#include <wx/toplevel.h>
#include <wx/uiaction.h>

#ifdef __WXGTK__
#include <gtk/gtk.h>
#else
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/image.h>
#endif

namespace tsln::workbench {

void press(int key, int modifiers) {
    wxUIActionSimulator user;
    user.Char(key, modifiers);
}

void type(const std::string& text) {
    for (const char c : text) {
        // Capitals and some signs need the Shift key; the simulator presses it only for letters.
        const bool shifted = (c >= 'A' && c <= 'Z') ||
                             std::string_view("!@#$%^&*()_+{}|:\"<>?~").find(c) != std::string_view::npos;
        press(c, shifted ? wxMOD_SHIFT : wxMOD_NONE);
    }
}

#ifdef __WXGTK__

namespace {

std::vector<GtkWindow*> shownWindows() {
    std::vector<GtkWindow*> shown;
    GList* windows = gtk_window_list_toplevels();
    for (GList* item = windows; item; item = item->next) {
        if (gtk_widget_get_mapped(GTK_WIDGET(item->data))) shown.push_back(GTK_WINDOW(item->data));
    }
    g_list_free(windows);
    return shown;
}

GtkWindow* activeWindow() {
    for (GtkWindow* window : shownWindows()) {
        if (gtk_window_is_active(window)) return window;
    }
    return nullptr;
}

GtkWidget* openMenu() {
    GtkWidget* grabbed = gtk_grab_get_current();
    return grabbed && GTK_IS_MENU(grabbed) ? grabbed : nullptr;
}

/// Returns a picture of the program's windows as the display shows them, on white.
GdkPixbuf* pictureOf(const std::vector<GtkWindow*>& windows) {
    std::vector<GdkRectangle> places;
    GdkWindow* root = gdk_get_default_root_window();
    const GdkRectangle display{0, 0, gdk_window_get_width(root), gdk_window_get_height(root)};
    GdkRectangle all{};
    for (GtkWindow* window : windows) {
        GdkRectangle place;
        gdk_window_get_frame_extents(gtk_widget_get_window(GTK_WIDGET(window)), &place);
        if (!gdk_rectangle_intersect(&place, &display, &place)) continue;
        if (!places.empty()) {
            gdk_rectangle_union(&all, &place, &all);
        } else {
            all = place;
        }
        places.push_back(place);
    }
    GdkPixbuf* whole = gdk_pixbuf_get_from_window(root, 0, 0, display.width, display.height);
    if (!whole || places.empty()) return whole;
    GdkPixbuf* picture = gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, all.width, all.height);
    gdk_pixbuf_fill(picture, 0xFFFFFFFF);
    for (const GdkRectangle& place : places) {
        gdk_pixbuf_copy_area(whole, place.x, place.y, place.width, place.height, picture, place.x - all.x,
                             place.y - all.y);
    }
    g_object_unref(whole);
    return picture;
}

bool save(GdkPixbuf* picture, const std::string& path) {
    if (!picture) return false;
    const bool saved = gdk_pixbuf_save(picture, path.c_str(), "png", nullptr, nullptr);
    g_object_unref(picture);
    return saved;
}

}  // namespace

std::string activeWindowTitle() {
    GtkWindow* window = activeWindow();
    const char* title = window ? gtk_window_get_title(window) : nullptr;
    return title ? title : "";
}

bool popupIsOpen() {
    return openMenu() != nullptr;
}

const void* frontWindow() {
    if (GtkWidget* menu = openMenu()) return gtk_widget_get_toplevel(menu);
    return activeWindow();
}

std::vector<const void*> openWindows() {
    const std::vector<GtkWindow*> windows = shownWindows();
    return {windows.begin(), windows.end()};
}

bool saveScreenshot(const std::string& path) {
    GdkWindow* root = gdk_get_default_root_window();
    return save(
        gdk_pixbuf_get_from_window(root, 0, 0, gdk_window_get_width(root), gdk_window_get_height(root)),
        path);
}

bool saveWindows(const std::string& path, const wxTopLevelWindow* except) {
    std::vector<GtkWindow*> windows = shownWindows();
    if (except) std::erase(windows, reinterpret_cast<GtkWindow*>(except->GetHandle()));
    return save(pictureOf(windows), path);
}

#else

std::string activeWindowTitle() {
    const auto* window = dynamic_cast<wxTopLevelWindow*>(wxGetActiveWindow());
    return window ? window->GetTitle().utf8_string() : std::string();
}

bool popupIsOpen() {
    return false;
}

const void* frontWindow() {
    return wxGetTopLevelParent(wxGetActiveWindow());
}

std::vector<const void*> openWindows() {
    return {wxTopLevelWindows.begin(), wxTopLevelWindows.end()};
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

bool saveWindows(const std::string& path, const wxTopLevelWindow*) {
    return saveScreenshot(path);
}

#endif

}  // namespace tsln::workbench
