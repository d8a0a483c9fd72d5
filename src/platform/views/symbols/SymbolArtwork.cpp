#include "platform/views/symbols/SymbolArtwork.hpp"

#include "platform/views/symbols/CutOutline.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace views {

namespace {

constexpr std::array weights{FontWeight::regular, FontWeight::medium, FontWeight::semibold,
                             FontWeight::bold};

double lineWidth(FontWeight weight) {
    switch (weight) {
        case FontWeight::regular:
            return 0.085;
        case FontWeight::medium:
            return 0.095;
        case FontWeight::semibold:
            return 0.108;
        case FontWeight::bold:
            return 0.125;
    }
    return 0;
}

SymbolStroke straightLine(Point from, Point to, double width) {
    return {{MoveTo{from}, LineTo{to}}, width};
}

// Length between the round caps' centres, so that the bold sign is 0.78 em wide.
constexpr double signLength = 0.655;

SymbolArtwork minus(double width) {
    const double middle = width / 2;
    return {{signLength + width, width},
            {},
            {straightLine({middle, middle}, {middle + signLength, middle}, width)}};
}

SymbolArtwork plus(double width) {
    const double first = width / 2;
    const double middle = first + signLength / 2;
    const double last = first + signLength;
    return {{signLength + width, signLength + width},
            {},
            {straightLine({first, middle}, {last, middle}, width),
             straightLine({middle, first}, {middle, last}, width)}};
}

/// A corner of a polygon that is rounded over the last `rounding` of each of its two edges.
struct RoundedCorner {
    Point at;
    double rounding;
};

Point onTheWay(Point from, Point to, double distance) {
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    return {from.x + (to.x - from.x) * distance / length,
            from.y + (to.y - from.y) * distance / length};
}

template <std::size_t count>
Outline roundedPolygon(const std::array<RoundedCorner, count>& corners) {
    constexpr double bulge = 0.6;  // how far the curve's controls go towards the corner
    Outline path;
    for (std::size_t i = 0; i < count; ++i) {
        const auto& [at, rounding] = corners[i];
        const Point before = corners[(i + count - 1) % count].at;
        const Point after = corners[(i + 1) % count].at;
        const Point start = onTheWay(at, before, rounding);
        if (path.empty())
            path.push_back(MoveTo{start});
        else
            path.push_back(LineTo{start});
        path.push_back(CurveTo{onTheWay(at, before, rounding * (1 - bulge)),
                               onTheWay(at, after, rounding * (1 - bulge)),
                               onTheWay(at, after, rounding)});
    }
    path.push_back(ClosePath{});
    return path;
}

// The loudspeaker's body: a box with a cone that opens to the right.
constexpr double boxHalfHeight = 0.16;
constexpr double boxWidth = 0.20;
constexpr double bodyWidth = 0.56;
constexpr double coneHalfHeight = 0.43;

Outline speakerBody(double left, double middle) {
    return roundedPolygon(std::array{
        RoundedCorner{{left, middle - boxHalfHeight}, 0.08},
        RoundedCorner{{left + boxWidth, middle - boxHalfHeight}, 0.06},
        RoundedCorner{{left + bodyWidth, middle - coneHalfHeight}, 0.11},
        RoundedCorner{{left + bodyWidth, middle + coneHalfHeight}, 0.11},
        RoundedCorner{{left + boxWidth, middle + boxHalfHeight}, 0.06},
        RoundedCorner{{left, middle + boxHalfHeight}, 0.08},
    });
}

/// An arc that bulges to the right, `halfAngle` up and down from the horizontal.
SymbolStroke wave(Point centre, double radius, double halfAngle, double width) {
    const double control = 4.0 / 3.0 * std::tan(halfAngle / 2) * radius;
    const double cosine = std::cos(halfAngle);
    const double sine = std::sin(halfAngle);
    const double x = centre.x + radius * cosine;
    const double dy = radius * sine;
    return {
        {MoveTo{{x, centre.y - dy}}, CurveTo{{x + control * sine, centre.y - dy + control * cosine},
                                             {x + control * sine, centre.y + dy - control * cosine},
                                             {x, centre.y + dy}}},
        width};
}

SymbolArtwork soundingSpeaker(double width) {
    constexpr double waveCentre = 0.41;
    constexpr double innerRadius = 0.46;
    constexpr double outerRadius = 0.7975;
    constexpr double outerHalfAngle = 0.50;
    constexpr double innerHalfAngle = 0.46;
    const double height = 2 * outerRadius * std::sin(outerHalfAngle) + width;
    const Point centre{waveCentre, height / 2};
    return {{waveCentre + outerRadius + width / 2, height},
            speakerBody(0, centre.y),
            {wave(centre, innerRadius, innerHalfAngle, width),
             wave(centre, outerRadius, outerHalfAngle, width)}};
}

SymbolArtwork struckSpeaker(double width) {
    constexpr Size slash{0.965, 0.865};  // between the round caps' centres
    constexpr double gap = 0.075;        // above the slash; below, the body grows out of it
    const Size bounds{slash.width + width, slash.height + width};
    const Point from{width / 2, width / 2};
    const Point to{from.x + slash.width, from.y + slash.height};
    const double length = std::hypot(slash.width, slash.height);
    const Point up{slash.height / length, -slash.width / length};
    const double clear = width / 2 + gap;

    const Outline body = speakerBody((bounds.width - bodyWidth) / 2, bounds.height / 2);
    Outline fill = cutOutline(body, {{from.x + up.x * clear, from.y + up.y * clear}, up});
    const Outline below = cutOutline(body, {from, {-up.x, -up.y}});
    fill.insert(fill.end(), below.begin(), below.end());
    return {bounds, fill, {straightLine(from, to, width)}};
}

/// One symbol in every weight.
struct Symbol {
    std::string_view name;
    std::array<SymbolArtwork, weights.size()> artwork;

    Symbol(std::string_view symbolName, SymbolArtwork (*draw)(double lineWidth))
        : name(symbolName) {
        std::transform(weights.begin(), weights.end(), artwork.begin(),
                       [draw](FontWeight weight) { return draw(lineWidth(weight)); });
    }
};

}  // namespace

const SymbolArtwork* symbolArtwork(std::string_view name, FontWeight weight) {
    static const std::array symbols{
        Symbol{"plus", plus},
        Symbol{"minus", minus},
        Symbol{"speaker.wave.2.fill", soundingSpeaker},
        Symbol{"speaker.slash.fill", struckSpeaker},
    };
    const auto symbol = std::find_if(symbols.begin(), symbols.end(),
                                     [name](const Symbol& s) { return s.name == name; });
    if (symbol == symbols.end())
        return nullptr;
    return &symbol->artwork[static_cast<std::size_t>(weight)];
}

}  // namespace views
