#include "platform/views/text/Font.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace views {

namespace {

// The system face's own figures, as it documents them; the stand-in font's are never used.
constexpr double ascent = 0.966797;         // em
constexpr double descent = 0.210938;        // em
constexpr double middleOfCapitals = 0.352;  // em above the baseline

struct SizeTracking {
    double size;      // points
    double tracking;  // points after every glyph
};

constexpr std::array trackingBySize{
    SizeTracking{9, 0.17},   SizeTracking{10, 0.12},  SizeTracking{11, 0.06},
    SizeTracking{12, 0.00},  SizeTracking{13, -0.08}, SizeTracking{14, -0.15},
    SizeTracking{15, -0.23}, SizeTracking{16, -0.31}, SizeTracking{17, -0.43},
    SizeTracking{18, -0.44}, SizeTracking{19, -0.45}, SizeTracking{20, -0.45},
    SizeTracking{22, -0.26}, SizeTracking{24, 0.07},  SizeTracking{26, 0.22},
};

}  // namespace

double Font::baseline() const {
    return std::round(ascent * size);
}

double Font::lineHeight() const {
    return baseline() + std::ceil(descent * size);
}

double Font::capMiddle() const {
    return middleOfCapitals * size;
}

double Font::sizeTracking() const {
    if (design == FontDesign::monospaced)
        return 0;
    const double inside = std::clamp(size, trackingBySize.front().size, trackingBySize.back().size);
    std::size_t upper = 1;
    while (trackingBySize[upper].size < inside)
        ++upper;
    const SizeTracking& a = trackingBySize[upper - 1];
    const SizeTracking& b = trackingBySize[upper];
    return a.tracking + (b.tracking - a.tracking) * (inside - a.size) / (b.size - a.size);
}

}  // namespace views
