#include "platform/views/Laid.hpp"
#include "platform/views/Probe.hpp"
#include "platform/views/stacks/Spacer.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/text/Text.hpp"
#include "platform/views/view/BuildEnvironment.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

using Lines = std::vector<std::string>;

// At this size every character is 5 points wide and a line 13 high.
const Font font{.size = 10};

Text text(const char* string) {
    return Text(string).font(font);
}

Lines linesOf(const View& view, const Proposal& offer) {
    return only<DrawText>(drawn(view, offer).drawing).lines;
}

TEST(Text, IsAsWideAsItsLineRoundedUpToAPixel) {
    const View tracked = text("0123456789").tracking(0.03);
    EXPECT_EQ(sizeOf(tracked, {}), (Size{50.5, 13}));
    EXPECT_EQ(sizeOf(tracked, {100, 100}), (Size{50.5, 13}));
    EXPECT_EQ(sizeOf(tracked, {infinity, infinity}), (Size{50.5, 13}));
    EXPECT_EQ(sizeOf(text("0123456789"), {}), (Size{50, 13}));
}

TEST(Text, IsNeverWiderThanWhatItIsOffered) {
    EXPECT_EQ(sizeOf(text("0123456789").tracking(0.03), {50.4, 20}), (Size{50.4, 13}));
    for (double width = 0; width <= 400; width += 0.5)
        for (const double height : {0.0, 13.0, 30.0, 400.0}) {
            const Size size = sizeOf(text("uno dos tres").tracking(0.1), {width, height});
            EXPECT_LE(size.width, width);
        }
}

TEST(Text, OfferedNothingShowsNothing) {
    EXPECT_EQ(sizeOf(text("hola"), {0, 100}), (Size{0, 13}));
    EXPECT_EQ(linesOf(text("hola"), {0, 100}), (Lines{""}));
}

TEST(Text, IsNeverLowerThanOneLine) {
    for (const double height : {0.0, 5.0, 12.9, 13.0})
        EXPECT_EQ(sizeOf(text("uno dos tres"), {20, height}), (Size{20, 13})) << height;
}

TEST(Text, HasAsManyLinesAsFitTheOfferedHeight) {
    struct Case {
        double height;
        Lines lines;
    };
    const Case cases[] = {
        {25.5, {"uno…"}},
        {26, {"uno", "dos…"}},
        {38.5, {"uno", "dos…"}},
        {39, {"uno", "dos", "tres"}},
        {400, {"uno", "dos", "tres"}},
        {infinity, {"uno", "dos", "tres"}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(linesOf(text("uno dos tres"), {20, c.height}), c.lines) << c.height;
        EXPECT_EQ(sizeOf(text("uno dos tres"), {20, c.height}).height,
                  13.0 * static_cast<double>(c.lines.size()));
    }
}

TEST(Text, HasNoMoreLinesThanItsLimit) {
    EXPECT_EQ(linesOf(text("uno dos tres").lineLimit(2), {20, 400}), (Lines{"uno", "dos…"}));
    EXPECT_EQ(linesOf(text("uno dos tres").lineLimit(1), {20, 400}), (Lines{"uno…"}));
    EXPECT_EQ(linesOf(text("uno dos tres").lineLimit(2), {20, 13}), (Lines{"uno…"}));
    EXPECT_EQ(sizeOf(text("uno dos").lineLimit(2), {400, 400}), (Size{35, 13}));
}

TEST(Text, OnSeveralLinesHugsTheWidest) {
    EXPECT_EQ(sizeOf(text("uno dosdos tres"), {44, 100}), (Size{30, 39}));
    EXPECT_EQ(sizeOf(text("uno\ndosdos"), {}), (Size{30, 26}));
}

TEST(Text, OfNothingIsOneLineHigh) {
    EXPECT_EQ(sizeOf(text(""), {100, 100}), (Size{0, 13}));
    EXPECT_EQ(sizeOf(text(""), {}), (Size{0, 13}));
    EXPECT_EQ(linesOf(text(""), {100, 100}), (Lines{""}));
}

TEST(Text, StandsOnTheBaselineOfItsFirstLine) {
    EXPECT_EQ(baselineOf(text("uno dos"), {20, 100}), 10);
    EXPECT_EQ(baselineOf(Text("8").font({.size = 26}), {}), 25);
}

TEST(Text, IsDrawnAsItIsMeasured) {
    const Color amber{0.9, 0.7, 0.3};
    const View view =
        Text("uno dos").font({.size = 10, .weight = semibold}).foregroundStyle(amber).tracking(1);
    EXPECT_EQ(drawn(view, {30, 100}).drawing,
              (std::vector<Command>{DrawText{{0, 0, 18, 26},
                                             "uno dos",
                                             {"uno", "dos"},
                                             {.size = 10, .weight = semibold},
                                             1,
                                             amber}}));
}

TEST(Text, LocalizedIsTheUsersTextForItsKeyOrTheKeyItself) {
    const support::World world;
    const BuildScope scope(world.environment);
    const auto shown = [](const Text& localized) {
        return only<DrawText>(drawn(localized, {}).drawing).text;
    };
    EXPECT_EQ(shown(Text::localized("sin entrada %")), "sin entrada %");
    EXPECT_EQ(shown(Text::localized("±%.1f", {2.45})), "±2,4");
}

TEST(Text, GivesWayInARowFromItsIdealWidthToNothing) {
    for (double width = 0; width <= 200; width += 0.5) {
        const View row = HStack{.spacing = 5}({
            text("POR APP"),
            Spacer{.minLength = 0},
            text("3 sonando").lineLimit(1),
        });
        const Size size = sizeOf(row, {width, 13});
        EXPECT_LE(size.width, std::max(width, 10.0)) << width;
        EXPECT_GE(size.width, width >= 90 ? width : 0) << width;
    }
}

TEST(Text, ShowsAllOfWhatItWasMeasuredForWithAnyPaddingAroundIt) {
    for (int tenth = 0; tenth <= 300; ++tenth) {
        Frames frames;
        const double length = tenth / 10.0;
        const View padded =
            text("uno dos").padding(Edge::horizontal, length).padding(Edge::vertical, length);
        const View row = HStack{}({padded.frame({.width = 24 + 2 * length}), rigid(1, 1, frames)});
        EXPECT_EQ(linesOf(row, {}), (Lines{"uno", "dos"})) << length;
        const View column = VStack{}({padded, rigid(1, 1, frames)});
        EXPECT_EQ(linesOf(column, {}), (Lines{"uno dos"})) << length;
        const View layers = ZStack{}({padded, rigid(1, 1, frames)});
        EXPECT_EQ(linesOf(layers, {}), (Lines{"uno dos"})) << length;
    }
}

}  // namespace
}  // namespace views
