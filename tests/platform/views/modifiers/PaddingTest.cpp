#include "platform/views/Laid.hpp"
#include "platform/views/Probe.hpp"
#include "platform/views/modifiers/Padding.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

TEST(Padding, AddsToTheNamedEdgesOnly) {
    struct Case {
        Edge edges;
        Size size;
        Rect inner;
    };
    const Case cases[] = {
        {Edge::top, {30, 20 + 7}, {0, 7, 30, 20}},
        {Edge::horizontal, {30 + 14, 20}, {7, 0, 30, 20}},
        {Edge::vertical, {30, 20 + 14}, {0, 7, 30, 20}},
    };
    for (const Case& c : cases) {
        Frames frames;
        const View padded = rigid(30, 20, frames).padding(c.edges, 7);
        EXPECT_EQ(sizeOf(padded, {100, 100}), c.size);
        EXPECT_EQ(sizeOf(padded, {}), c.size);
        drawn(padded, {100, 100});
        EXPECT_EQ(frames, (Frames{c.inner}));
    }
}

TEST(Padding, OffersWhatItLeaves) {
    Frames frames;
    const View padded = greedy(frames).padding(Edge::horizontal, 12).padding(Edge::vertical, 6);
    EXPECT_EQ(sizeOf(padded, {100, 50}), (Size{100, 50}));
    drawn(padded, {100, 50});
    EXPECT_EQ(frames, (Frames{{12, 6, 76, 38}}));
    EXPECT_EQ(sizeOf(padded, {}), (Size{34, 22}));
    EXPECT_EQ(sizeOf(padded, {infinity, 50}), (Size{infinity, 50}));
}

TEST(Padding, NeverOffersLessThanNothing) {
    Frames frames;
    const View padded = greedy(frames).padding(Edge::horizontal, 12).padding(Edge::top, 6);
    for (const double offer : {0.0, 5.0, 6.0}) {
        frames.clear();
        EXPECT_EQ(sizeOf(padded, {offer, offer}), (Size{24, 6}));
        drawn(padded, {offer, offer});
        EXPECT_EQ(frames, (Frames{{12, 6, 0, 0}}));
    }
}

}  // namespace
}  // namespace views
