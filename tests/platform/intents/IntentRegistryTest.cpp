#include "platform/intents/IntentError.hpp"
#include "platform/intents/IntentRegistry.hpp"
#include "platform/intents/Samples.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace intents {
namespace {

const IntentRegistry registry = IntentRegistry::of<Note, Fail>();

std::string refusal(const ArchivedAction& action) {
    try {
        registry.performance(action);
        return "none";
    } catch (const IntentError& error) {
        return error.what();
    }
}

TEST(IntentRegistry, DescribesItsActionsInOrder) {
    const auto descriptions = registry.descriptions();
    ASSERT_EQ(descriptions.size(), 2u);
    EXPECT_EQ(descriptions[0].identifier, "Note");
    EXPECT_EQ(descriptions[0].title, "Anotar");
    ASSERT_EQ(descriptions[0].parameters.size(), 3u);
    using Type = ParameterDescription::Type;
    EXPECT_EQ(descriptions[0].parameter("text")->type, Type::text);
    EXPECT_EQ(descriptions[0].parameter("number")->type, Type::number);
    EXPECT_EQ(descriptions[0].parameter("truth")->type, Type::truth);
    EXPECT_EQ(descriptions[0].parameter("number")->title, "Número");
    EXPECT_EQ(descriptions[0].parameter("number")->controlStyle, ControlStyle::stepper);
    EXPECT_EQ(descriptions[0].parameter("other"), nullptr);
    EXPECT_TRUE(descriptions[1].parameters.empty());
    EXPECT_EQ(registry.description("Fail").title, "Fallar");
}

TEST(IntentRegistry, MakesAnActionAfreshWithTheArchivedValues) {
    const support::World world;
    registry.performance(note)(world.environment);
    ArchivedAction backwards = note;
    std::ranges::reverse(backwards.parameters);
    backwards.parameters[2].second = "ñ";
    registry.performance(backwards)(world.environment);
    EXPECT_EQ(world.notifications.posted(),
              (std::vector<std::string>{"a 0.500000 yes", "ñ 0.500000 yes"}));
}

TEST(IntentRegistry, WhatIsArchivedIsRestored) {
    Note original;
    original.text.value = "x";
    original.number.value = -0.0;
    original.truth.value = false;
    EXPECT_EQ(archived(restored<Note>(archived(original))), archived(original));
    EXPECT_EQ(restored<Note>(archived(original)).number.title, "Número");
}

TEST(IntentRegistry, RefusesWhatCannotBeRun) {
    EXPECT_EQ(refusal(note), "none");
    EXPECT_EQ(refusal({.identifier = "note"}), "unknownAction: note");
    EXPECT_EQ(refusal({}), "unknownAction: ");
    for (const auto& [change, expected] :
         std::vector<std::pair<std::function<void(ArchivedAction&)>, std::string>>{
             {[](auto& a) { a.parameters.erase(a.parameters.begin()); },
              "missingParameter: Note.text"},
             {[](auto& a) { a.parameters.pop_back(); }, "missingParameter: Note.truth"},
             {[](auto& a) { a.parameters.clear(); }, "missingParameter: Note.text"},
             {[](auto& a) { a.parameters.emplace_back("Text", "b"); },
              "unknownParameter: Note.Text"},
             {[](auto& a) { a.parameters.emplace_back("text", "b"); },
              "repeatedParameter: Note.text"},
             {[](auto& a) { a.parameters[0].second = true; }, "wrongType: Note.text"},
             {[](auto& a) { a.parameters[1].second = "1"; }, "wrongType: Note.number"},
             {[](auto& a) { a.parameters[1].second = true; }, "wrongType: Note.number"},
             {[](auto& a) { a.parameters[2].second = 1.0; }, "wrongType: Note.truth"},
         }) {
        ArchivedAction changed = note;
        change(changed);
        EXPECT_EQ(refusal(changed), expected);
    }
}

}  // namespace
}  // namespace intents
