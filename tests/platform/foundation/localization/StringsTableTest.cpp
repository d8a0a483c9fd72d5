#include "platform/foundation/localization/StringsTable.hpp"
#include "support/BinaryPropertyLists.hpp"

#include <gtest/gtest.h>

namespace foundation {
namespace {

using namespace std::string_literals;
using support::binaryList;

const std::string head = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">)";

std::string plural(const std::string& key, const std::string& type, const std::string& wordings) {
    return head + "<dict><key>" + key +
           "</key><dict><key>NSStringLocalizedFormatKey</key><string>%#@n@</string><key>n</"
           "key><dict>"
           "<key>NSStringFormatSpecTypeKey</key><string>NSStringPluralRuleType</string>"
           "<key>NSStringFormatValueTypeKey</key><string>" +
           type + "</string>" + wordings + "</dict></dict></dict></plist>";
}

std::string valueOf(const StringsTable& table, std::string_view key) {
    const LocalizedFormat* entry = table.entry(key);
    return entry ? entry->text : "(none)";
}

TEST(StringsTable, ReadsTheSameEntriesInEveryForm) {
    const std::string forms[] = {
        "\"k\" = \"vé\";"s,
        "\xEF\xBB\xBF\"k\" = \"v\\U00e9\";"s,
        "\xFF\xFE\"\0k\0\"\0=\0\"\0v\0\xE9\0\"\0;\0"s,
        "\xFE\xFF\0\"\0k\0\"\0=\0\"\0v\0\xE9\0\"\0;"s,
        head + "<dict><key>k</key><string>vé</string></dict></plist>",
        "\n <plist><dict><key>k</key><string>vé</string></dict></plist>"s,
        binaryList({"\xD1\x01\x02"s, "\x51k"s, "\x62\0v\0\xE9"s}),
    };
    for (const std::string& form : forms) {
        const StringsTable table("es", form, "");
        EXPECT_EQ(table.size(), 1u) << testing::PrintToString(form);
        EXPECT_EQ(valueOf(table, "k"), "vé") << testing::PrintToString(form);
    }
}

TEST(StringsTable, WhatCannotBeReadIsAnEmptyTable) {
    for (const std::string& bytes :
         {""s, "/* only this */"s, "\"k\" = \"v\"; junk"s, "\"k\" = \"\xE9\";"s, "\xFF\xFEk"s,
          head + "<array/></plist>", "<junk"s, "bplist00"s, binaryList({"\xA0"})})
        EXPECT_EQ(StringsTable("es", bytes, "").size(), 0u) << testing::PrintToString(bytes);
}

TEST(StringsTable, OnlyTextsOfAPropertyListAreEntries) {
    const StringsTable table(
        "es",
        head +
            "<dict><key>a</key><integer>1</integer><key>b</key><string>c</string></dict></plist>",
        "");
    EXPECT_EQ(table.size(), 1u);
    EXPECT_EQ(valueOf(table, "b"), "c");
}

TEST(StringsTable, PluralEntriesOverridePlainOnesOfTheSameKey) {
    const StringsTable table("en", "\"%lld x\" = \"plain\"; a = b;",
                             plural("%lld x", "lld",
                                    "<key>one</key><string>%lld ex</string>"
                                    "<key>other</key><string>%lld exes</string>"));
    const LocalizedFormat* entry = table.entry("%lld x");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->text, "%#@n@");
    EXPECT_EQ(entry->variables.at("n"),
              (LocalizedFormat::Wordings{{"one", "%lld ex"}, {"other", "%lld exes"}}));
    EXPECT_EQ(valueOf(table, "a"), "b");
    EXPECT_EQ(table.language(), "en");
}

TEST(StringsTable, AJunkPlainTableLeavesThePluralEntries) {
    const StringsTable table("en", "junk", plural("k", "d", "<key>other</key><string>x</string>"));
    EXPECT_EQ(table.size(), 1u);
}

TEST(StringsTable, APluralEntryWithoutAFormatLeavesThePlainOne) {
    const StringsTable table("en", "k = v;",
                             head + "<dict><key>k</key><dict/><key>l</key><true/></dict></plist>");
    EXPECT_EQ(table.size(), 1u);
    EXPECT_EQ(valueOf(table, "k"), "v");
}

TEST(StringsTable, AVariableOfAnotherRuleOrTypeIsLeftOut) {
    for (const char* type : {"d", "i", "ld", "li", "lld", "lli", "qd"})
        EXPECT_TRUE(
            StringsTable("en", "", plural("k", type, "")).entry("k")->variables.contains("n"))
            << type;
    for (const char* type : {"", "@", "f", "u", "lf", "ddd", "lldx", "%d"})
        EXPECT_TRUE(StringsTable("en", "", plural("k", type, "")).entry("k")->variables.empty())
            << type;
}

}  // namespace
}  // namespace foundation
