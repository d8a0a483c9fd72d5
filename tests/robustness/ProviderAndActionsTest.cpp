#include "linea/Proveedor.hpp"
#include "peticiones/Acciones.hpp"
#include "platform/intents/ActionRuntime.hpp"
#include "robustness/Workplace.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <future>
#include <string>
#include <thread>
#include <vector>

namespace {

using nurva::GrupoDeApps::Peticion;

TEST(ProviderAndActions, WorkAtOnceOnOneContainer) {
    const int turns = std::getenv("NURVA_LONG") ? 20'000 : 200;
    const Workplace workplace;
    std::atomic<bool> done = false;
    std::atomic<int> timelines = 0;
    std::vector<std::jthread> others(4);
    for (auto& provider : others)
        provider = std::jthread([&] {
            while (!done)
                nurva::Proveedor().getTimeline(
                    {.environment = workplace.environment()},
                    [&](const widgets::Timeline<nurva::Entrada>& timeline) {
                        ASSERT_EQ(timeline.entries.size(), 1u);
                        ASSERT_TRUE(timeline.entries.front().estado);
                        ++timelines;
                    });
        });
    others.emplace_back([&] {
        while (!done)
            workplace.publish(Workplace::snapshot());
    });

    intents::ActionRuntime runtime(nurva::acciones());
    std::vector<std::future<intents::IntentResult>> results;
    for (int turn = 0; turn < turns; ++turn)
        results.push_back(runtime.perform(
            {"PonerVolumen", {{"clave", std::string("app")}, {"nivel", static_cast<double>(turn)}}},
            workplace.environment()));
    for (auto& result : results)
        result.get();
    done = true;
    others.clear();

    EXPECT_GT(timelines, 0);
    EXPECT_EQ(workplace.posts(), turns);
    EXPECT_TRUE(std::holds_alternative<Peticion::Volumen>(workplace.standingRequest().caso));
    RecordProperty("actions", turns);
    RecordProperty("timelines", timelines);
}

}  // namespace
