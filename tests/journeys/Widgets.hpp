#pragma once

#include "journeys/Picture.hpp"
#include "journeys/Screen.hpp"
#include "journeys/ScreenReader.hpp"

#include <array>
#include <string>
#include <vector>

namespace journeys {

struct Widget {
    std::string kind;
    std::string name;
    std::string description;
    canvas::PixelSize size;  // at one pixel a point
};

/// All of them, in the order of the gallery.
extern const std::array<Widget, 4> widgets;
inline const Widget& whatIsOn = widgets[0];
inline const Widget& profiles = widgets[1];
inline const Widget& room = widgets[2];
inline const Widget& volume = widgets[3];

/// What a screen reader says of an element.
struct Spoken {
    std::string role;
    std::string name;
    bool isEnabled = true;  // always, for a text
    bool operator==(const Spoken&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Spoken& spoken);

/// What is in a card's window beside the window and the card themselves.
std::vector<Spoken> spoken(const std::vector<Heard>& window);

/// What the command line says is on a card now, for screen readers and for the eyes.
std::vector<Spoken> spokenByCommandLine(const Widget& widget);
Picture drawnByCommandLine(const Widget& widget, double scale = 1);

/// Waits until a widget's card is seen on the screen as the command line draws it now.
bool isSeenAsDrawn(const Widget& widget, const Screen& screen, double scale = 1);

/// Whether a card is seen as in this picture, which has transparent corners.
bool isSeen(const Picture& card, const Picture& screen);
/// Whether it is seen anywhere in a part of a screen.
bool isSeenIn(const Picture& card, const Picture& screen, const Area& part);

}  // namespace journeys
