#include "platform/foundation/text/UTF8.hpp"
#include "platform/foundation/text/UnicodeText.hpp"
#include "support/Hex.hpp"
#include "support/SharedData.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdint>
#include <fstream>
#include <sstream>

namespace foundation {
namespace {

using namespace std::string_view_literals;

struct Pair {
    std::string_view a;
    std::string_view b;
};

TEST(CanonicallyEqual, TakesTheSameCharactersHoweverComposed) {
    const Pair pairs[] = {
        {"", ""},
        {"abc", "abc"},
        {"M\u00fasica", "Mu\u0301sica"},
        {"a\u00f1o", "an\u0303o"},
        {"\u212b", "A\u030a"},
        {"\u212a", "K"},
        {"\u2126", "\u03a9"},
        {"\u037e", ";"},
        {"\u1fef", "`"},
        {"\uac01", "\u1100\u1161\u11a8"},
        {"a\u0323\u0307", "a\u0307\u0323"},
        {"\u1e9b\u0323", "\u017f\u0323\u0307"},
        {"\u0958", "\u0915\u093c"},
        {"\U0001d15e", "\U0001d157\U0001d165"},
        {"a\0b"sv, "a\0b"sv},
        {"\u1ec7", "\u00ea\u0323"},
        {"\uf900", "\u8c48"},
    };
    for (const Pair& pair : pairs) {
        EXPECT_TRUE(canonicallyEqual(pair.a, pair.b)) << pair.a << " " << pair.b;
        EXPECT_TRUE(canonicallyEqual(pair.b, pair.a)) << pair.a << " " << pair.b;
    }
}

TEST(CanonicallyEqual, TellsDifferentCharactersApart) {
    const Pair pairs[] = {
        {"abc", "abd"},
        {"a", "A"},
        {"a", ""},
        {"a\0"sv, "a"sv},
        {"\ufb01", "fi"},
        {"\u00b2", "2"},
        {"\u00df", "ss"},
        {"a\u0301\u0300", "a\u0300\u0301"},
        {"\r\n", "\n"},
        {" ", "\u00a0"},
        {"a\u200cb", "ab"},
        {"\u2764\ufe0f", "\u2764"},
        {"\u00e9", "e"},
        {"a\u034f\u0301", "\u00e1"},
        {"\u0301e", "e\u0301"},
        {"\uffff", "\ufffe"},
    };
    for (const Pair& pair : pairs) {
        EXPECT_FALSE(canonicallyEqual(pair.a, pair.b)) << pair.a << " " << pair.b;
        EXPECT_FALSE(canonicallyEqual(pair.b, pair.a)) << pair.a << " " << pair.b;
    }
}

TEST(CanonicallyEqual, AMalformedTextEqualsItselfOnly) {
    EXPECT_TRUE(canonicallyEqual("\xff", "\xff"));
    EXPECT_FALSE(canonicallyEqual("\xff", "a"));
    EXPECT_FALSE(canonicallyEqual("a\xc3", "a"));
}

TEST(Uppercased, MapsEveryLetterByNoLanguageInParticular) {
    const Pair pairs[] = {
        {"", ""},
        {"Volumen por app", "VOLUMEN POR APP"},
        {"{}@[`az~", "{}@[`AZ~"},
        {"Qu\u00e9 est\u00e1 puesto", "QU\u00c9 EST\u00c1 PUESTO"},
        {"mu\u0301sica", "MU\u0301SICA"},
        {"stra\u00dfe", "STRASSE"},
        {"\ufb01n", "FIN"},
        {"i\u0131\u0130", "II\u0130"},
        {"\u03c3\u03c2", "\u03a3\u03a3"},
        {"\u0390", "\u0399\u0308\u0301"},
        {"\u1fb3", "\u0391\u0399"},
        {"\u01c6\u01c5", "\u01c4\u01c4"},
        {"\u10d0", "\u1c90"},
        {"\u65e5\u672c \U0001f600", "\u65e5\u672c \U0001f600"},
        {"A\u00d1O", "A\u00d1O"},
    };
    for (const Pair& pair : pairs)
        EXPECT_EQ(uppercased(pair.a), pair.b);
}

nlohmann::json reference() {
    const auto file = support::sharedData("oracle/text-and-numbers.json");
    return file ? nlohmann::json::parse(std::ifstream(*file)) : nlohmann::json();
}

std::string bytes(const nlohmann::json& text) {
    return support::bytesFromHex(text.at("hex").get<std::string>());
}

/// The text of code points in hexadecimal, with a blank between two.
std::string characters(const std::string& codePoints) {
    std::istringstream words(codePoints);
    std::string text;
    for (std::uint32_t number = 0; words >> std::hex >> number;)
        appendUTF8(text, number);
    return text;
}

TEST(CanonicallyEqual, AgreesWithTheReference) {
    const auto all = reference();
    if (all.is_null())
        GTEST_SKIP() << "no reference data";
    for (const auto& pair : all.at("igualdadDeCadenas"))
        EXPECT_EQ(canonicallyEqual(bytes(pair.at("a")), bytes(pair.at("b"))),
                  pair.at("string").get<bool>())
            << pair.at("nota");
}

TEST(Uppercased, AgreesWithTheReference) {
    const auto all = reference();
    if (all.is_null())
        GTEST_SKIP() << "no reference data";
    for (const auto& pair : all.at("mayusculas"))
        EXPECT_EQ(uppercased(bytes(pair.at("de"))), bytes(pair.at("a"))) << pair.at("de");
    for (const auto& [from, to] : all.at("mayusculasPorEscalar").items())
        EXPECT_EQ(uppercased(characters(from)), characters(to.get<std::string>())) << from;
}

}  // namespace
}  // namespace foundation
