#pragma once

namespace views {

enum class FontWeight { regular, medium, semibold, bold };
using enum FontWeight;
enum class FontDesign { standard, monospaced };

/// The system face at a size in points.
struct Font {
    double size = 12;
    FontWeight weight = FontWeight::regular;
    FontDesign design = FontDesign::standard;
    bool operator==(const Font&) const = default;

    /// Height of one line, whole points; lines stand on each other without further space.
    double lineHeight() const;
    /// Distance of the baseline from the top of its line, whole points.
    double baseline() const;
    /// Distance from the baseline up to the middle of the capitals, in points.
    double capMiddle() const;
    /// What the face itself adds after every glyph at this size, in points; 0 for the monospaced
    /// one.
    double sizeTracking() const;
};

}  // namespace views
