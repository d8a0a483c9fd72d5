#include "platform/views/Laid.hpp"
#include "platform/views/Probe.hpp"
#include "platform/views/layout/GeometryReader.hpp"
#include "platform/views/stacks/Stacks.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

TEST(GeometryReader, TakesWhatItIsOffered) {
    const GeometryReader reader([](Size) { return Color{}; });
    EXPECT_EQ(sizeOf(reader, {120, 40}), (Size{120, 40}));
    EXPECT_EQ(sizeOf(reader, {0, 0}), (Size{0, 0}));
    EXPECT_EQ(sizeOf(reader, {infinity, 7}), (Size{infinity, 7}));
    EXPECT_EQ(sizeOf(reader, {}), (Size{10, 10}));
}

TEST(GeometryReader, MakesItsContentForTheSizeItGot) {
    std::vector<Size> sizes;
    const GeometryReader reader([&](Size size) {
        sizes.push_back(size);
        return Color{};
    });
    drawn(reader, {120, 40});
    EXPECT_EQ(sizes, (std::vector<Size>{{120, 40}}));
}

TEST(GeometryReader, PutsItsContentAtTheTopLeadingCorner) {
    Frames frames;
    drawn(GeometryReader([&](Size) { return rigid(30, 200, frames); }), {120, 40});
    EXPECT_EQ(frames, (Frames{{0, 0, 30, 200}}));
}

TEST(GeometryReader, OffersItsContentItsSize) {
    Frames frames;
    drawn(GeometryReader([&](Size) { return greedy(frames); }), {120, 40});
    EXPECT_EQ(frames, (Frames{{0, 0, 120, 40}}));
}

TEST(GeometryReader, KeepsContentsOfOnePassApart) {
    Frames frames;
    const auto reader = [&](double share) {
        return GeometryReader([&frames, share](Size size) {
            return HStack{.spacing = 1}({
                rigid(size.width * share, 5, frames),
                greedy(frames),
            });
        });
    };
    drawn(VStack{}({reader(0.25), reader(0.5)}), {80, 20});
    EXPECT_EQ(frames,
              (Frames{{0, 2.5, 20, 5}, {21, 0, 59, 10}, {0, 12.5, 40, 5}, {41, 10, 39, 10}}));
}

}  // namespace
}  // namespace views
