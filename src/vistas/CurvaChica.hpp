#pragma once

#include "platform/views/geometry/Color.hpp"
#include "platform/views/geometry/Geometry.hpp"
#include "platform/views/view/View.hpp"

#include <span>
#include <vector>

namespace nurva {

/// An equalizer curve in miniature, across whatever it is given: one point per band, evenly spaced,
/// on a fixed scale of ±12 dB.
struct CurvaChica : views::Modifiers<CurvaChica> {
    std::vector<double> ganancias;  // decibels, lowest band first
    views::Color color;
    double grosor = 1;     // width of the line in points
    bool conArea = false;  // tint what lies under the curve

    views::View body() const;
};

/// The curve's points in a rectangle of this size: +12 dB at its top, −12 dB at its bottom, what
/// lies beyond on the edge. A gain that is no number has no height either.
std::vector<views::Point> puntosDeCurva(std::span<const double> ganancias, views::Size medida);

}  // namespace nurva
