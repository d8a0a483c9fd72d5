#include "platform/foundation/localization/Format.hpp"
#include "platform/foundation/localization/PluralCategory.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace foundation {
namespace {

using Arguments = std::vector<FormatArgument>;

std::optional<std::string> expanded(const LocalizedFormat& format,
                                    const Arguments& arguments,
                                    const std::string& locale = "es_ES",
                                    std::string_view language = "es") {
    return expandedFormat(format, arguments, {locale}, language);
}

const FormatArgument text = std::string("x%@y");
const FormatArgument integer = std::int64_t{12345};
const FormatArgument decimal = 2.45;

TEST(Format, PutsArgumentsIn) {
    struct Case {
        std::string format;
        Arguments arguments;
        std::string result;
    };
    const Case cases[] = {
        {"", {}, ""},
        {"nada", {text}, "nada"},
        {"%@", {text}, "x%@y"},
        {"ahora: %@", {text}, "ahora: x%@y"},
        {"%lld por ciento", {integer}, "12.345 por ciento"},
        {"%ld", {integer}, "12.345"},
        {"%d %i %qd %lli", {integer, integer, integer, integer}, "12.345 12.345 12.345 12.345"},
        {"±%.1f", {decimal}, "±2,4"},
        {"%.0f|%.2f|%f", {decimal, decimal, decimal}, "2|2,45|2,450000"},
        {"100%%", {}, "100%"},
        {"%%@ %%lld", {}, "%@ %lld"},
        {"%lld%%", {integer}, "12.345%"},
        {"%@ %lld %.1f", {text, integer, decimal}, "x%@y 12.345 2,4"},
        {"%3$.1f %1$@ %2$lld", {text, integer, decimal}, "2,4 x%@y 12.345"},
        {"%1$@ %1$@", {text}, "x%@y x%@y"},
        {"%2$lld %@", {text, integer}, "12.345 x%@y"},
        {"%@", {text, integer}, "x%@y"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(expanded({.text = c.format}, c.arguments), c.result) << c.format;
}

TEST(Format, WhatDoesNotFitTheArgumentsIsRefused) {
    struct Case {
        std::string format;
        Arguments arguments;
    };
    const Case cases[] = {
        {"%", {text}},
        {"100% seguro", {}},
        {"%@", {}},
        {"%@ %@", {text}},
        {"%@", {integer}},
        {"%@", {decimal}},
        {"%lld", {text}},
        {"%lld", {decimal}},
        {"%.1f", {integer}},
        {"%.1f", {text}},
        {"%2$@", {text}},
        {"%0$@", {text}},
        {"%10$@", {text}},
        {"%$@", {text}},
        {"%1$", {text}},
        {"%1$%", {text}},
        {"%99999999999999999999$@", {text}},
        {"%n", {integer}},
        {"%s", {text}},
        {"%p", {text}},
        {"%x", {integer}},
        {"%u", {integer}},
        {"%llu", {integer}},
        {"%c", {integer}},
        {"%5lld", {integer}},
        {"%-5@", {text}},
        {"%*lld", {integer, integer}},
        {"%ll", {integer}},
        {"%l", {integer}},
        {"%hd", {integer}},
        {"%.f", {decimal}},
        {"%.10f", {decimal}},
        {"%.:f", {decimal}},
        {"%./f", {decimal}},
        {"%.1", {decimal}},
        {"%.1lf", {decimal}},
        {"%e", {decimal}},
        {"%#@n@", {integer}},
        {"%#@n", {integer}},
        {"%#n@", {integer}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(expanded({.text = c.format}, c.arguments), std::nullopt) << c.format;
}

const LocalizedFormat outputs{
    .text = "%#@n@.",
    .variables = {{"n", {{"one", "%lld output"}, {"other", "%lld outputs"}}}},
};

TEST(Format, PluralsFollowTheLanguageOfTheTextAndDigitsTheLocale) {
    EXPECT_EQ(expanded(outputs, {std::int64_t{1}}, "es_ES", "en"), "1 output.");
    EXPECT_EQ(expanded(outputs, {std::int64_t{0}}, "es_ES", "en"), "0 outputs.");
    EXPECT_EQ(expanded(outputs, {std::int64_t{0}}, "es_ES", "fr"), "0 output.");
    EXPECT_EQ(expanded(outputs, {std::int64_t{12345}}, "es_ES", "en"), "12.345 outputs.");
    EXPECT_EQ(expanded(outputs, {std::int64_t{1}}, "ar_EG", "en"), "١ output.");
}

TEST(Format, AMissingCategoryTakesOther) {
    EXPECT_EQ(expanded(outputs, {std::int64_t{3}}, "pl_PL", "pl"), "3 outputs.");
    const LocalizedFormat onlyOne{.text = "%#@n@", .variables = {{"n", {{"one", "uno"}}}}};
    EXPECT_EQ(expanded(onlyOne, {std::int64_t{1}}, "es", "en"), "uno");
    EXPECT_EQ(expanded(onlyOne, {std::int64_t{2}}, "es", "en"), std::nullopt);
}

TEST(Format, AVariableCountsTheArgumentAtItsPlace) {
    const LocalizedFormat format{
        .text = "%@: %#@n@",
        .variables = {{"n", {{"one", "%2$lld of %1$@"}, {"other", "%lld (%1$@)"}}}},
    };
    EXPECT_EQ(expanded(format, {std::string("a"), std::int64_t{1}}, "en", "en"), "a: 1 of a");
    EXPECT_EQ(expanded(format, {std::string("a"), std::int64_t{2}}, "en", "en"), "a: 2 (a)");
    EXPECT_EQ(expanded(format, {std::int64_t{2}, std::string("a")}, "en", "en"), std::nullopt);
    const LocalizedFormat swapped{.text = "%2$#@n@ %1$@", .variables = format.variables};
    EXPECT_EQ(expanded(swapped, {std::string("a"), std::int64_t{2}}, "en", "en"), "2 (a) a");
}

TEST(Format, VariablesMayStandInVariablesButNotInThemselves) {
    const LocalizedFormat nested{
        .text = "%#@a@",
        .variables = {{"a", {{"other", "[%#@b@]"}}}, {"b", {{"other", "%lld"}}}},
    };
    EXPECT_EQ(expanded(nested, {std::int64_t{7}}), "[7]");
    const LocalizedFormat endless{.text = "%#@a@", .variables = {{"a", {{"other", "%#@a@"}}}}};
    EXPECT_EQ(expanded(endless, {std::int64_t{7}}), std::nullopt);
    const LocalizedFormat doubling{
        .text = "%#@a@",
        .variables = {{"a", {{"other", "%1$#@b@%1$#@b@"}}}, {"b", {{"other", "%1$#@a@%1$#@a@"}}}},
    };
    EXPECT_EQ(expanded(doubling, {std::int64_t{7}}), std::nullopt);
}

TEST(PluralCategory, FollowsTheRulesOfEachLanguage) {
    struct Case {
        std::string language;
        std::int64_t number;
        std::string category;
    };
    const Case cases[] = {
        {"en", 0, "other"},   {"en", 1, "one"},   {"en", 2, "other"},  {"en", -1, "one"},
        {"en-GB", 1, "one"},  {"es", 1, "one"},   {"es_MX", 1, "one"}, {"es", 1'000'000, "many"},
        {"fr", 0, "one"},     {"fr", 1, "one"},   {"pl", 1, "one"},    {"pl", 2, "few"},
        {"pl", 5, "many"},    {"pl", 22, "few"},  {"ar", 0, "zero"},   {"ar", 2, "two"},
        {"ar", 11, "many"},   {"ja", 1, "other"}, {"xx", 1, "other"},  {"", 1, "other"},
        {"Base", 1, "other"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(pluralCategory(c.number, c.language), c.category)
            << c.language << " " << c.number;
}

}  // namespace
}  // namespace foundation
