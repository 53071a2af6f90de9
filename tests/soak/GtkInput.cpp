#include "tests/soak/GtkInput.h"

#include <memory>

namespace tsln::soak {
namespace {

struct Free {
    void operator()(GdkEvent* event) const { gdk_event_free(event); }
};
using EventPtr = std::unique_ptr<GdkEvent, Free>;

GdkSeat* seat() {
    return gdk_display_get_default_seat(gdk_display_get_default());
}

EventPtr makeEvent(GdkEventType type, GdkWindow* window) {
    EventPtr event(gdk_event_new(type));
    event->any.window = GDK_WINDOW(g_object_ref(window));
    event->any.send_event = TRUE;
    return event;
}

guint16 hardwareCode(guint key) {
    GdkKeymapKey* keys = nullptr;
    int count = 0;
    if (!gdk_keymap_get_entries_for_keyval(gdk_keymap_get_for_display(gdk_display_get_default()), key, &keys,
                                           &count))
        return 0;
    const auto code = static_cast<guint16>(keys[0].keycode);
    g_free(keys);
    return code;
}

}  // namespace

void pressKey(GtkWindow* window, guint key, GdkModifierType modifiers) {
    GdkWindow* const area = gtk_widget_get_window(GTK_WIDGET(window));
    if (!area) return;
    g_object_ref(area);
    for (const GdkEventType type : {GDK_KEY_PRESS, GDK_KEY_RELEASE}) {
        if (gdk_window_is_destroyed(area)) break;  // the key closed the window
        const EventPtr event = makeEvent(type, area);
        event->key.time = GDK_CURRENT_TIME;
        event->key.state = modifiers;
        event->key.keyval = key;
        event->key.hardware_keycode = hardwareCode(key);
        gdk_event_set_device(event.get(), gdk_seat_get_keyboard(seat()));
        gtk_main_do_event(event.get());
    }
    g_object_unref(area);
}

void click(GtkWidget* widget, GdkWindow* area, int x, int y, guint button, int times) {
    if (!area || !gtk_widget_get_mapped(widget)) return;
    g_object_ref(area);
    const auto send = [&](GdkEventType type) {
        if (gdk_window_is_destroyed(area)) return;
        const EventPtr event = makeEvent(type, area);
        event->button.time = static_cast<guint32>(g_get_monotonic_time() / 1000);
        event->button.x = x;
        event->button.y = y;
        int left = 0, top = 0;
        gdk_window_get_origin(area, &left, &top);
        event->button.x_root = left + x;
        event->button.y_root = top + y;
        event->button.button = button;
        gdk_event_set_device(event.get(), gdk_seat_get_pointer(seat()));
        gtk_main_do_event(event.get());
    };
    send(GDK_BUTTON_PRESS);
    send(GDK_BUTTON_RELEASE);
    if (times == 2) {
        send(GDK_BUTTON_PRESS);
        send(GDK_2BUTTON_PRESS);
        send(GDK_BUTTON_RELEASE);
    }
    g_object_unref(area);
}

GtkMenuShell* openMenu() {
    GtkWidget* const grabbed = gtk_grab_get_current();
    return grabbed && GTK_IS_MENU(grabbed) ? GTK_MENU_SHELL(grabbed) : nullptr;
}

GtkWindow* windowWithInput() {
    GtkWidget* const grabbed = gtk_grab_get_current();
    GtkWidget* const top = grabbed ? gtk_widget_get_toplevel(grabbed) : nullptr;
    return top && GTK_IS_WINDOW(top) ? GTK_WINDOW(top) : nullptr;
}

}  // namespace tsln::soak
