#include "platform/foundation/plist/PropertyList.hpp"
#include "support/BinaryPropertyLists.hpp"

#include <gtest/gtest.h>

namespace foundation {
namespace {

using namespace std::string_literals;
using support::binaryList;
using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

PropertyList text(const char* value) {
    return PropertyList{std::string(value)};
}

std::string xml(const std::string& value) {
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)" + value + "</plist>";
}

TEST(PropertyList, ReadsEveryKindFromXML) {
    struct Case {
        std::string value;
        PropertyList list;
    };
    const Case cases[] = {
        {"<true/>", {true}},
        {"<false/>", {false}},
        {"<integer>42</integer>", {std::int64_t{42}}},
        {"<integer>-42</integer>", {std::int64_t{-42}}},
        {"<real>1.5</real>", {1.5}},
        {"<string>a &amp; &lt;é&gt;</string>", text("a & <é>")},
        {"<string></string>", text("")},
        {"<array><string>a</string><integer>1</integer></array>",
         {Array{text("a"), {std::int64_t{1}}}}},
        {"<dict><key>k</key><string>v</string><key>d</key><dict/></dict>",
         {Dictionary{{"k", text("v")}, {"d", {Dictionary()}}}}},
        {"<dict><key>k</key><date>2001-01-01T00:00:00Z</date><key>b</key><data>AAAA</data></dict>",
         {Dictionary()}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(PropertyList::parse(xml(c.value)), c.list) << c.value;
}

TEST(PropertyList, ReadsEveryKindFromBinary) {
    struct Case {
        std::vector<std::string> objects;
        PropertyList list;
    };
    const Case cases[] = {
        {{"\x08"}, {false}},
        {{"\x09"}, {true}},
        {{"\x10\x2A"}, {std::int64_t{42}}},
        {{"\x10\xFF"}, {std::int64_t{255}}},
        {{"\x11\x01\x02"}, {std::int64_t{258}}},
        {{"\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"}, {std::int64_t{-1}}},
        {{"\x22\x3F\xC0\0\0"s}, {1.5}},
        {{"\x23\x3F\xF8\0\0\0\0\0\0"s}, {1.5}},
        {{"\x53"
          "abc"},
         text("abc")},
        {{"\x5F\x10\x10"
          "0123456789abcdef"},
         text("0123456789abcdef")},
        {{"\x62\0a\0\xE9"s}, text("aé")},
        {{"\xA2\x01\x01",
          "\x51"
          "a"},
         {Array{text("a"), text("a")}}},
        {{"\xD1\x01\x02",
          "\x51"
          "k",
          "\x08"},
         {Dictionary{{"k", {false}}}}},
        {{"\xA2\x01\x02", "\x41x", "\x33\0\0\0\0\0\0\0\0"s}, {Array()}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(PropertyList::parse(binaryList(c.objects)), c.list)
            << testing::PrintToString(c.objects);
}

TEST(PropertyList, GivesTheStringsOfAnArrayOfADictionary) {
    const PropertyList list{Dictionary{{"all", {Array{text("a"), text("b")}}},
                                       {"mixed", {Array{{true}, text("c"), {Array{text("d")}}}}},
                                       {"empty", {Array()}},
                                       {"one", text("e")}}};
    using Strings = std::vector<std::string>;
    EXPECT_EQ(list.strings("all"), (Strings{"a", "b"}));
    EXPECT_EQ(list.strings("mixed"), Strings{"c"});
    for (const char* key : {"empty", "one", "missing"})
        EXPECT_EQ(list.strings(key), Strings{}) << key;
    EXPECT_EQ(text("all").strings("all"), Strings{});
}

TEST(PropertyList, RefusesMalformedBytes) {
    for (const std::string& bytes : {""s,
                                     "bplist00"s,
                                     "no list"s,
                                     "<"s,
                                     "<plist>"s,
                                     "<plist><dict>"s,
                                     xml("<wrong/>"),
                                     xml("<string>\xFF</string>"),
                                     xml("<string>&#xD800;</string>"),
                                     "\xFF\xFE<"s,
                                     binaryList({"\x53"
                                                 "ab"}),
                                     binaryList({"\x53\xFF\xFF\xFF"}),
                                     binaryList({"\x61\xD8\0"s}),
                                     binaryList({"\xA1\x05"}),
                                     binaryList({"\xA1"}),
                                     binaryList({"\xD1\x01\x01", "\x08"}),
                                     binaryList({"\x08"}, 1),
                                     binaryList({"\x5F\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"}),
                                     binaryList({"\x5F\x14"}),
                                     binaryList({"\x20\0"s}),
                                     binaryList({})})
        EXPECT_EQ(PropertyList::parse(bytes), std::nullopt) << testing::PrintToString(bytes);
}

TEST(PropertyList, CutShortAnywhereABinaryListIsRefused) {
    const std::string whole = binaryList({"\xD1\x01\x02",
                                          "\x51"
                                          "k",
                                          "\x10\x2A"});
    ASSERT_TRUE(PropertyList::parse(whole).has_value());
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ(PropertyList::parse(whole.substr(0, size)), std::nullopt) << size;
}

TEST(PropertyList, RefusesWhatNestsTooDeep) {
    const auto nested = [](std::size_t depth) {
        std::string value;
        for (std::size_t i = 0; i < depth; ++i)
            value += "<array>";
        for (std::size_t i = 0; i < depth; ++i)
            value += "</array>";
        return xml(value);
    };
    EXPECT_TRUE(PropertyList::parse(nested(60)).has_value());
    for (const std::size_t depth : {70u, 5'000u, 60'000u})
        EXPECT_EQ(PropertyList::parse(nested(depth)), std::nullopt) << depth;
}

TEST(PropertyList, RefusesABinaryListThatGoesInCircles) {
    EXPECT_EQ(PropertyList::parse(binaryList({"\xA1\0"s})), std::nullopt);
    EXPECT_EQ(PropertyList::parse(binaryList({"\xA1\x01", "\xA1\0"s})), std::nullopt);
}

TEST(PropertyList, RefusesAFewBytesThatStandForGigabytes) {
    std::vector<std::string> doubling;
    for (int i = 1; i <= 40; ++i)
        doubling.push_back(std::string("\xA2") + static_cast<char>(i) + static_cast<char>(i));
    doubling.emplace_back("\xA0");
    EXPECT_EQ(PropertyList::parse(binaryList(doubling)), std::nullopt);
}

TEST(PropertyList, RefusesMoreThanAMebibyte) {
    const std::string filler(std::size_t{1} << 20, ' ');
    EXPECT_TRUE(PropertyList::parse(xml("<true/>")).has_value());
    EXPECT_EQ(PropertyList::parse(xml("<true/>" + filler)), std::nullopt);
}

}  // namespace
}  // namespace foundation
