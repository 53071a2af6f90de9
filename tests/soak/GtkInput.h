#pragma once

#include <gtk/gtk.h>

/// Keys and clicks given to the toolkit directly, as if they came from the display server: a hundred times as fast.
namespace tsln::soak {

/// Presses and releases a key in the window. `key` is a GDK_KEY_ code.
void pressKey(GtkWindow* window, guint key, GdkModifierType modifiers = {});
/// Clicks at a point of the widget's drawing area. `times`: 2 for a double click.
void click(GtkWidget* widget, GdkWindow* area, int x, int y, guint button, int times = 1);
/// The menu that is open, or null.
GtkMenuShell* openMenu();
/// The window that takes all input: a dialog or a popup; null for none.
GtkWindow* windowWithInput();

}  // namespace tsln::soak
