#include "tests/desktop/Picture.h"

#include <cstdlib>

#include <gtest/gtest.h>
#include <wx/dcmemory.h>
#include <wx/dcscreen.h>
#include <wx/image.h>
#include <wx/window.h>
#ifdef __WXGTK__
#include <gtk/gtk.h>
#endif

namespace tsln::desktop::test {

void savePicture(const wxWindow& window, const std::string& name) {
    const char* folder = std::getenv("TSLN_PICTURES");
    if (!folder) return;
    const std::string path = std::string(folder) + "/" + name;
#ifdef __WXGTK__
    GdkRectangle place;
    gdk_window_get_frame_extents(gtk_widget_get_window(window.GetHandle()), &place);
    GdkPixbuf* picture = gdk_pixbuf_get_from_window(gdk_get_default_root_window(), place.x, place.y,
                                                    place.width, place.height);
    EXPECT_TRUE(gdk_pixbuf_save(picture, (path + "-linux.png").c_str(), "png", nullptr, nullptr));
    g_object_unref(picture);
#else
    const wxRect place(window.ClientToScreen({0, 0}),
                       window.GetClientSize());  // without the frame, which is not the system's
    wxScreenDC screen;
    wxBitmap picture(place.GetSize());
    wxMemoryDC memory(picture);
    memory.Blit({0, 0}, place.GetSize(), &screen, place.GetPosition());
    memory.SelectObject(wxNullBitmap);
    EXPECT_TRUE(picture.ConvertToImage().SaveFile(path + "-windows.bmp", wxBITMAP_TYPE_BMP));
#endif
}

}  // namespace tsln::desktop::test
