#include "platform/views/Laid.hpp"
#include "platform/views/Probe.hpp"
#include "platform/views/scene/Card.hpp"
#include "platform/views/text/Text.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

constexpr Color amber{0.9, 0.7, 0.3};
constexpr Card small{.size = {170, 170}, .margin = 12};

Scene onCard(const View& view, const Card& card = small) {
    return layOut(view, card, support::FixedTextMeasurer());
}

TEST(Card, OffersItsViewWhatTheMarginsLeave) {
    Frames frames;
    onCard(greedy(frames));
    EXPECT_EQ(frames, (Frames{{12, 12, 146, 146}}));
}

TEST(Card, HasItsViewInTheMiddleWhateverItsSize) {
    Frames frames;
    onCard(rigid(46, 26, frames));
    onCard(rigid(160, 200, frames));
    EXPECT_EQ(frames, (Frames{{62, 72, 46, 26}, {5, -15, 160, 200}}));
}

TEST(Card, KeepsWhatLiesOnItsMargins) {
    const View high = Color(amber).body().frame({.width = 10, .height = 400});
    EXPECT_EQ(onCard(high).drawing.size(), 1u);
    EXPECT_EQ(onCard(high.offset(79, 0)).drawing.size(), 1u);
    EXPECT_EQ(onCard(high.offset(91, 0)).drawing.size(), 0u);
}

TEST(Card, SaysItsSizeAndBackground) {
    const Scene scene = onCard(Color(amber).body().containerBackground({0.1, 0.2, 0.3}));
    EXPECT_EQ(scene.size, (Size{170, 170}));
    EXPECT_EQ(scene.background, (Color{0.1, 0.2, 0.3}));
}

TEST(Card, MeasuresTextsInItsPixels) {
    const View text = Text("0123456789").font({.size = 10}).tracking(0.03);
    const auto widthAt = [&](double scale) {
        return only<DrawText>(
                   onCard(text, {.size = {170, 170}, .margin = 12, .scale = scale}).drawing)
            .frame.width;
    };
    EXPECT_EQ(widthAt(1), 51);
    EXPECT_EQ(widthAt(2), 50.5);
    EXPECT_DOUBLE_EQ(widthAt(1.25), 50.4);
    EXPECT_DOUBLE_EQ(widthAt(3), 151. / 3);
}

TEST(Card, WithoutRoomBetweenItsMarginsStillHasItsView) {
    Frames frames;
    const Scene scene = onCard(rigid(10, 10, frames), {.size = {0, 0}, .margin = 12});
    EXPECT_EQ(frames, (Frames{{-5, -5, 10, 10}}));
}

}  // namespace
}  // namespace views
