#include "platform/views/text/Text.hpp"
#include "platform/views/view/BuildEnvironment.hpp"
#include "platform/widgets/EntryRenderer.hpp"
#include "support/FixedTextMeasurer.hpp"
#include "support/SceneQueries.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace widgets {
namespace {

struct Entry {
    foundation::Date date;
    std::optional<double> value;
};

const std::optional<double>& state(const Entry& entry) {
    return entry.value;
}

AnyEntry entryShowing(std::function<views::View(const Entry&)> content) {
    return AnyEntry(Entry{.date = support::noon, .value = 1}, std::move(content));
}

constexpr views::Card card{.size = {100, 50}, .margin = 12, .scale = 2};

TEST(EntryRenderer, LaysTheContentOutInsideTheMargins) {
    const support::World world;
    const support::FixedTextMeasurer measurer;
    const EntryRenderer renderer(world.environment, measurer);
    const auto scene = renderer.render(entryShowing([](const Entry&) {
                                           return views::Color{1, 0, 0};
                                       }),
                                       card);
    EXPECT_EQ(scene.size, card.size);
    EXPECT_EQ(support::all<views::FillShape>(scene).at(0).frame, (views::Rect{12, 12, 76, 26}));
}

TEST(EntryRenderer, BuildsAgainstItsEnvironment) {
    const support::World world;
    const support::FixedTextMeasurer measurer;
    const EntryRenderer renderer(world.environment, measurer);
    renderer.render(entryShowing([&](const Entry&) {
                        EXPECT_EQ(&views::buildEnvironment(), &world.environment);
                        return views::Text("a");
                    }),
                    card);
}

TEST(EntryRenderer, BuildsOneViewAtATime) {
    const support::World world;
    const support::FixedTextMeasurer measurer;
    std::atomic<int> building = 0;
    std::atomic<int> overlapping = 0;
    const auto entry = entryShowing([&](const Entry&) {
        overlapping += ++building > 1 ? 1 : 0;
        std::this_thread::yield();
        --building;
        return views::Text("a");
    });
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < 8; ++i)
            threads.emplace_back([&] {
                const EntryRenderer renderer(world.environment, measurer);
                for (int turn = 0; turn < 200; ++turn)
                    renderer.render(entry, card);
            });
    }
    EXPECT_EQ(overlapping, 0);
}

TEST(AnyEntry, TellsWhetherItHasAStateAndWritesIt) {
    const std::function<views::View(const Entry&)> content = [](const Entry&) {
        return views::Text("a");
    };
    const AnyEntry full(Entry{.date = support::noon, .value = 1.5}, content);
    const AnyEntry empty(Entry{.date = support::noon, .value = std::nullopt}, content);
    const auto written = [](const AnyEntry& entry) {
        foundation::Encoder encoder;
        encoder.encodeObject([&] { entry.encodeState(encoder, "state"); });
        return encoder.text();
    };
    EXPECT_TRUE(full.hasState());
    EXPECT_EQ(written(full), R"({"state":1.5})");
    EXPECT_FALSE(empty.hasState());
    EXPECT_EQ(written(empty), R"({"state":null})");
    EXPECT_EQ(full.stateAs<double>(), 1.5);
    EXPECT_EQ(full.stateAs<int>(), std::nullopt);
    EXPECT_EQ(empty.stateAs<double>(), std::nullopt);
}

}  // namespace
}  // namespace widgets
