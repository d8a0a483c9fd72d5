#include "platform/foundation/localization/StringsText.hpp"

#include <gtest/gtest.h>

namespace foundation {
namespace {

using Entries = std::map<std::string, std::string>;
using namespace std::string_view_literals;

void expectEntries(std::string_view text, const Entries& entries) {
    const auto parsed = parseStringsText(text);
    ASSERT_TRUE(parsed.has_value()) << text;
    EXPECT_EQ(*parsed, entries) << text;
}

TEST(StringsText, ReadsEntries) {
    expectEntries("", {});
    expectEntries(" \t\r\n\v\f\u2028\u2029", {});
    expectEntries(R"("a" = "b";)", {{"a", "b"}});
    expectEntries(R"("a"="b";"c"="d";)", {{"a", "b"}, {"c", "d"}});
    expectEntries(R"('a' = 'b"c';)", {{"a", "b\"c"}});
    expectEntries(R"("a" = "it's";)", {{"a", "it's"}});
    expectEntries(R"("" = "";)", {{"", ""}});
    expectEntries("\"a\" = \"two\nlines\";", {{"a", "two\nlines"}});
    expectEntries(R"("Quitar silencio a %@" = "Unmute %@";)",
                  {{"Quitar silencio a %@", "Unmute %@"}});
}

TEST(StringsText, AKeyAloneIsItsOwnValue) {
    expectEntries("\"a b\"; c;", {{"a b", "a b"}, {"c", "c"}});
}

TEST(StringsText, BareWordsTakeTheirCharactersAndNoOthers) {
    expectEntries("aZ09_$/:.-=x;", {{"aZ09_$/:.-", "x"}});
    expectEntries("http://host/path = a//b;", {{"http://host/path", "a//b"}});
    for (int c = 1; c < 128; ++c) {
        const std::string word = std::string("a") + static_cast<char>(c) + "b";
        const bool bare = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                          (c >= '0' && c <= '9') ||
                          "_$/:.-"sv.find(static_cast<char>(c)) != "_$/:.-"sv.npos;
        // Some of these make other good lines of it, such as "a;b;" and "a=b;".
        const auto parsed = parseStringsText(word + ";");
        EXPECT_EQ(parsed && parsed->contains(word), bare) << c;
    }
}

TEST(StringsText, SkipsComments) {
    expectEntries("/* one */ a = /* two */ b /* three */; // four\nc; // five",
                  {{"a", "b"}, {"c", "c"}});
    expectEntries("/**/ /***/ /* // */ a;", {{"a", "a"}});
    expectEntries("// one\r a;", {{"a", "a"}});
    expectEntries("\"/* no */\" = \"// comment\";", {{"/* no */", "// comment"}});
}

TEST(StringsText, ExpandsEscapes) {
    struct Case {
        std::string_view written;
        std::string_view meant;
    };
    const Case cases[] = {
        {R"(\a\b\f\n\r\t\v)", "\a\b\f\n\r\t\v"},
        {R"(\"\'\\)", "\"'\\"},
        {"\\\n", "\n"},
        {R"(\q\x\u0041\%)", "qxu0041%"},
        {R"(\U00e9)", "é"},
        {R"(\U00E9z)", "éz"},
        {R"(\Ue9z)", "éz"},
        {R"(\U2192\U2192)", "→→"},
        {R"(\U221241)", "−41"},
        {R"(\Uz)", "Uz"},
        {R"(\UD83D\UDE00)", "😀"},
        {R"(\Ud83d\Ude00)", "😀"},
        {R"(\UD83D)", "\uFFFD"},
        {R"(\UD83Dx)", "\uFFFDx"},
        {R"(\UD83D\U0041)",
         "\uFFFD"
         "A"},
        {R"(\UDE00\UD83D)", "\uFFFD\uFFFD"},
        {R"(\UD83D\n)", "\uFFFD\n"},
        {R"(\101\60)", "A0"},
        {R"(\1018)", "A8"},
        {R"(\08)",
         "\0"
         "8"sv},
        {R"(\351)", "é"},
        {R"(\9)", "9"},
    };
    for (const Case& c : cases)
        expectEntries("k = \"" + std::string(c.written) + "\";", {{"k", std::string(c.meant)}});
}

TEST(StringsText, TheLastDuplicateWins) {
    expectEntries("a = b; a = c; a = d;", {{"a", "d"}});
    expectEntries("a = b; \"a\";", {{"a", "a"}});
}

TEST(StringsText, JunkSpoilsTheWholeTable) {
    for (const std::string_view junk :
         {"a = b; c = d"sv, "a"sv,          "a = ;"sv,      "= b;"sv,
          "a b;"sv,         "a = b c;"sv,   "a = \"b;"sv,   "a = 'b;"sv,
          "a = b; /* c"sv,  "a = b; /"sv,   "a = (b);"sv,   "a = {b = c;};"sv,
          "a = <00>;"sv,    "{ a = b; }"sv, ";"sv,          "a = b;;"sv,
          "a = \"b\\"sv,    "á = b;"sv,     "a = \"\\U"sv,  "a == b;"sv,
          "a = b; \0"sv,    "@ = a;"sv,     "a = b; * c;"sv})
        EXPECT_EQ(parseStringsText(junk), std::nullopt) << junk;
}

TEST(StringsText, CutShortAnywhereItIsJunkOrFewerEntries) {
    const std::string whole = "/* x */ \"a\\U00e9\" = \"b\\101\"; // y\n'c' = d; e;";
    const auto all = parseStringsText(whole);
    ASSERT_TRUE(all.has_value());
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const auto some = parseStringsText(std::string_view(whole).substr(0, size));
        EXPECT_TRUE(!some || some->size() < all->size()) << size;
    }
}

}  // namespace
}  // namespace foundation
