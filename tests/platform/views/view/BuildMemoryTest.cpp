#include "platform/views/Laid.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/text/Text.hpp"
#include "platform/views/view/BuildMemory.hpp"
#include "platform/views/view/ViewList.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace views {
namespace {

View sentence() {
    return HStack{.spacing = 5}({Text("uno").font({.size = 10}),
                                 ViewList{Text("dos").font({.size = 10}), Text("tres")}})
        .padding(Edge::top, 3);
}

TEST(BuildMemory, IsWhereViewsOfABuildLive) {
    std::pmr::memory_resource* const heap = BuildMemory::current();
    const BuildMemory outer;
    std::pmr::memory_resource* const ofOuter = BuildMemory::current();
    EXPECT_NE(ofOuter, heap);
    {
        const BuildMemory inner;
        EXPECT_NE(BuildMemory::current(), ofOuter);
        EXPECT_NE(BuildMemory::current(), heap);
    }
    EXPECT_EQ(BuildMemory::current(), ofOuter);
}

TEST(BuildMemory, LastsAsLongAsAViewOfIt) {
    std::optional<BuildMemory> build(std::in_place);
    std::optional<View> whole = sentence();
    const Scene asBuilt = drawn(*whole, {200, 40});
    std::vector<View> parts(3, *whole);
    build.reset();
    EXPECT_EQ(drawn(*whole, {200, 40}), asBuilt);
    whole.reset();
    EXPECT_EQ(drawn(parts.back(), {200, 40}), asBuilt);
}

TEST(BuildMemory, HoldsViewsOfSeveralBuildsTogether) {
    std::optional<View> inner;
    std::optional<View> outer;
    {
        const BuildMemory first;
        inner = sentence();
        const BuildMemory second;
        outer = inner->padding(Edge::top, 1);
    }
    inner.reset();
    EXPECT_EQ(sizeOf(*outer, {200, 40}).height, sizeOf(sentence(), {200, 40}).height + 1);
}

TEST(BuildMemory, GrowsBeyondWhatAFaceTakes) {
    const BuildMemory build;
    std::vector<View> lines;
    for (int i = 0; i < 5000; ++i)
        lines.push_back(Text(std::to_string(i)).font({.size = 10}));
    EXPECT_EQ(sizeOf(VStack{}({ViewList(lines)}), {}).height, 5000 * 13);
}

}  // namespace
}  // namespace views
