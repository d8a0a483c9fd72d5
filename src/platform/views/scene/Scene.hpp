#pragma once

#include "platform/intents/ArchivedAction.hpp"
#include "platform/views/geometry/Color.hpp"
#include "platform/views/geometry/Geometry.hpp"
#include "platform/views/shapes/Shape.hpp"
#include "platform/views/shapes/StrokeStyle.hpp"
#include "platform/views/text/Font.hpp"

#include <string>
#include <variant>
#include <vector>

namespace views {

// What a laid-out view comes to: plain data in drawing order. Frames and points are points of the
// card, unrounded: whoever draws them snaps them to pixels.

struct FillShape {
    Shape shape;
    Rect frame;
    Color color;
    bool operator==(const FillShape&) const = default;
};

/// A border; the frame is that of the stroked line's middle, inset already by half the line width.
struct StrokeShape {
    Shape shape;
    Rect frame;
    double lineWidth = 1;
    Color color;
    bool operator==(const StrokeShape&) const = default;
};

/// The polygon through the points, closed, non-zero winding.
struct FillPath {
    std::vector<Point> points;
    Color color;
    bool operator==(const FillPath&) const = default;
};

/// The open polyline through the points. A lone point draws nothing.
struct StrokePath {
    std::vector<Point> points;
    StrokeStyle style;
    Color color;
    bool operator==(const StrokePath&) const = default;
};

/// Lines of text from the top of the frame, each at its left edge.
struct DrawText {
    Rect frame;
    std::string text;                // the whole string
    std::vector<std::string> lines;  // what is shown of it
    Font font;
    double tracking = 0;  // what the view asked for, on top of the face's own
    Color color;
    bool operator==(const DrawText&) const = default;
};

/// A symbol; the frame is that of its artwork.
struct DrawSymbol {
    std::string name;
    Rect frame;
    Font font;
    Color color;
    bool operator==(const DrawSymbol&) const = default;
};

struct Command;

/// Commands that are drawn as one picture and then laid on what stands below, `opacity` opaque.
struct Group {
    double opacity = 1;
    std::vector<Command> drawing;
    bool operator==(const Group&) const;
};

struct Command
    : std::variant<FillShape, StrokeShape, FillPath, StrokePath, DrawText, DrawSymbol, Group> {
    using variant::variant;
    const variant& alternatives() const { return *this; }
    bool operator==(const Command&) const;
};

/// Something that can be pressed.
struct Control {
    Rect frame;
    std::string label;
    bool enabled = true;
    intents::ArchivedAction action;
    bool operator==(const Control&) const = default;
};

enum class AccessibilityRole { text, button };

/// Something a screen reader speaks of.
struct AccessibilityElement {
    AccessibilityRole role = AccessibilityRole::text;
    std::string label;
    bool enabled = true;
    Rect frame;
    bool operator==(const AccessibilityElement&) const = default;
};

/// A card, ready to be drawn, pressed and spoken. What lies wholly outside the card is not in it.
struct Scene {
    Size size;
    Color background = Color::clear();
    std::vector<Command> drawing;
    std::vector<Control> controls;
    std::vector<AccessibilityElement> accessibility;
    bool operator==(const Scene&) const = default;
};

/// Radius of the card's continuous corners, in points: measured on several systems, agreeing.
inline constexpr double cardCornerRadius = 27.88;

}  // namespace views
