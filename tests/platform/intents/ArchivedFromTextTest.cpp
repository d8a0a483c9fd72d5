#include "platform/intents/ArchivedFromText.hpp"
#include "platform/intents/IntentError.hpp"
#include "platform/intents/Samples.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace intents {
namespace {

ArchivedAction archivedFrom(const std::vector<std::string>& assignments) {
    return archivedFromText(describe<Note>(), assignments);
}

ParameterValue valueOf(const std::string& assignment) {
    return archivedFrom({assignment}).parameters.at(0).second;
}

std::string refusal(const std::vector<std::string>& assignments) {
    try {
        archivedFrom(assignments);
        return "none";
    } catch (const IntentError& error) {
        return error.what();
    }
}

TEST(ArchivedFromText, ReadsEachValueAsItsParametersType) {
    EXPECT_EQ(archivedFrom({"text=a", "number=0.5", "truth=true"}), note);
    EXPECT_EQ(archivedFrom({}), ArchivedAction{.identifier = "Note"});
}

TEST(ArchivedFromText, TakesATextAsItStands) {
    for (const std::string text : {"", "a", "true", "0.5", "a=b", "=", " a ", "ñ"})
        EXPECT_EQ(valueOf("text=" + text), ParameterValue(text));
    EXPECT_EQ(refusal({"text=\xFF"}), "wrongType: Note.text");
}

TEST(ArchivedFromText, ReadsNumbersWithoutALocale) {
    for (const auto& [text, value] : std::vector<std::pair<std::string, double>>{
             {"0", 0}, {"0.5", 0.5}, {"-0.2", -0.2}, {"1.5", 1.5}, {"1e3", 1000}, {".5", 0.5}})
        EXPECT_EQ(valueOf("number=" + text), ParameterValue(value)) << text;
    for (const char* none : {"", "0,5", "a", "0.5 ", " 0.5", "0.5x", "+1", "1e999", "0x10", "--1",
                             "nan", "inf", "-inf"})
        EXPECT_EQ(refusal({std::string("number=") + none}), "wrongType: Note.number") << none;
}

TEST(ArchivedFromText, ReadsTruthsInTwoLanguages) {
    for (const char* yes : {"true", "sí", "si"})
        EXPECT_EQ(valueOf(std::string("truth=") + yes), ParameterValue(true)) << yes;
    for (const char* no : {"false", "no"})
        EXPECT_EQ(valueOf(std::string("truth=") + no), ParameterValue(false)) << no;
    for (const char* none : {"", "1", "0", "True", "yes", "sí "})
        EXPECT_EQ(refusal({std::string("truth=") + none}), "wrongType: Note.truth") << none;
}

TEST(ArchivedFromText, RefusesWhatIsNoAssignmentToAParameter) {
    EXPECT_EQ(refusal({"other=a"}), "unknownParameter: Note.other");
    EXPECT_EQ(refusal({"other"}), "unknownParameter: Note.other");
    EXPECT_EQ(refusal({"=a"}), "unknownParameter: Note");
    EXPECT_EQ(refusal({"text"}), "missingParameter: Note.text");
}

}  // namespace
}  // namespace intents
