#pragma once

#include "platform/views/geometry/Geometry.hpp"

#include <gtk/gtk.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace desktop {

/// The screen of the tests, 1280 by 800 pixels with a window manager, for all tests of the process.
/// GTK is ready for it, and its accessibility is the one that tests can ask.
namespace screen {

/// Goes on with the main loop until the condition holds; false when it does not in time.
bool waitFor(const std::function<bool()>& condition);

/// Goes on with the main loop until everything that has been asked of the server is done, and every
/// window has drawn what came of it.
void settle();

/// A window as the server knows it. (The server's own header is too free with common words.)
using WindowNumber = unsigned long;
WindowNumber windowOf(GtkWindow* window);
WindowNumber rootWindow();

/// The corner of a window on the screen.
views::Point cornerOf(WindowNumber window);
views::Point cornerOf(GtkWindow* window);

/// A pixel as it is seen: 0xRRGGBB.
std::uint32_t pixel(int x, int y);

/// Numbers in a property of a window.
std::vector<unsigned long> property(WindowNumber window, const char* name);
bool hasState(WindowNumber window, const char* state);

/// The widgets under another that answer to a condition, in their order.
std::vector<GtkWidget*> under(GtkWidget* widget, const std::function<bool(GtkWidget*)>& condition);

/// Whether a widget is a picture, as wide as a small card at least.
bool isPicture(GtkWidget* widget);

/// Whether a screen reader is told this name of a widget.
bool isCalled(GtkWidget* widget, const std::string& name);

void movePointer(double x, double y);
void holdButton(unsigned button = 1);

/// Holds the button and moves on before anybody has heard of it.
void holdAndMove(double x, double y);
void releaseButton(unsigned button = 1);
void click(double x, double y, unsigned button = 1);
/// A key by its GDK name, with another one held.
void pressKey(unsigned key, unsigned modifier = 0);

void holdKey(unsigned key);
void releaseKey(unsigned key);

/// Gives a window the keyboard.
void activate(GtkWindow* window);

}  // namespace screen
}  // namespace desktop
