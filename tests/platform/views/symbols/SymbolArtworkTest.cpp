#include "platform/views/symbols/SymbolArtwork.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string_view>

namespace views {
namespace {

constexpr FontWeight everyWeight[] = {FontWeight::regular, FontWeight::medium, FontWeight::semibold,
                                      FontWeight::bold};
constexpr const char* everyName[] = {"plus", "minus", "speaker.wave.2.fill", "speaker.slash.fill"};

/// The box around what a symbol draws.
class Extents {
  public:
    explicit Extents(const SymbolArtwork& artwork) {
        add(artwork.fill, 0);
        for (const SymbolStroke& stroke : artwork.strokes)
            add(stroke.path, stroke.lineWidth / 2);
    }

    double left = std::numeric_limits<double>::infinity();
    double top = left;
    double right = -left;
    double bottom = -left;

  private:
    void add(const Outline& path, double beside) {
        Point from;
        for (const OutlineElement& element : path) {
            if (const auto* move = std::get_if<MoveTo>(&element))
                from = move->to;
            if (const auto* line = std::get_if<LineTo>(&element))
                from = line->to;
            if (const auto* curve = std::get_if<CurveTo>(&element)) {
                for (int i = 1; i < 64; ++i)
                    add(along(from, *curve, i / 64.0), beside);
                from = curve->to;
            }
            add(from, beside);
        }
    }
    void add(Point p, double beside) {
        left = std::min(left, p.x - beside);
        top = std::min(top, p.y - beside);
        right = std::max(right, p.x + beside);
        bottom = std::max(bottom, p.y + beside);
    }
    static Point along(Point from, const CurveTo& c, double t) {
        const double u = 1 - t;
        const auto mix = [&](double a, double b, double d, double e) {
            return u * u * u * a + 3 * u * u * t * b + 3 * u * t * t * d + t * t * t * e;
        };
        return {mix(from.x, c.control1.x, c.control2.x, c.to.x),
                mix(from.y, c.control1.y, c.control2.y, c.to.y)};
    }
};

TEST(SymbolArtwork, KnowsItsFourSymbolsOnly) {
    for (const FontWeight weight : everyWeight) {
        for (const char* name : everyName)
            EXPECT_NE(symbolArtwork(name, weight), nullptr) << name;
        for (const char* name : {"", "plus ", "Plus", "speaker", "speaker.wave.2"})
            EXPECT_EQ(symbolArtwork(name, weight), nullptr) << name;
    }
}

TEST(SymbolArtwork, FillsItsBoundsExactly) {
    for (const char* name : everyName) {
        for (const FontWeight weight : everyWeight) {
            const SymbolArtwork& artwork = *symbolArtwork(name, weight);
            const Extents extents(artwork);
            EXPECT_NEAR(extents.left, 0, 0.001) << name;
            EXPECT_NEAR(extents.top, 0, 0.001) << name;
            EXPECT_NEAR(extents.right, artwork.bounds.width, 0.001) << name;
            EXPECT_NEAR(extents.bottom, artwork.bounds.height, 0.001) << name;
        }
    }
}

TEST(SymbolArtwork, HasTheExtentsThatTheWidgetsAreLaidOutFor) {
    struct Case {
        std::string_view name;
        FontWeight weight;
        Size bounds;
    };
    for (const auto& [name, weight, bounds] :
         {Case{"plus", FontWeight::bold, {0.78, 0.78}},
          Case{"minus", FontWeight::bold, {0.78, 0.125}},
          Case{"speaker.wave.2.fill", FontWeight::regular, {1.25, 0.85}},
          Case{"speaker.slash.fill", FontWeight::regular, {1.05, 0.95}}}) {
        const SymbolArtwork& artwork = *symbolArtwork(name, weight);
        EXPECT_NEAR(artwork.bounds.width, bounds.width, 0.005) << name;
        EXPECT_NEAR(artwork.bounds.height, bounds.height, 0.005) << name;
    }
    EXPECT_EQ(symbolArtwork("plus", FontWeight::bold)->strokes.front().lineWidth, 0.125);
}

TEST(SymbolArtwork, DrawsHeavierLinesInHeavierWeights) {
    for (const char* name : everyName) {
        double lighter = 0;
        for (const FontWeight weight : everyWeight) {
            for (const SymbolStroke& stroke : symbolArtwork(name, weight)->strokes)
                EXPECT_GT(stroke.lineWidth, lighter) << name;
            lighter = symbolArtwork(name, weight)->strokes.front().lineWidth;
        }
    }
}

}  // namespace
}  // namespace views
