#include "platform/foundation/json/JSONReader.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using foundation::JSONReader;

bool isJSON(const std::string& text) {
    JSONReader reader(text);
    return reader.isAtEnd(reader.skipValue(reader.begin()));
}

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i) {
        result += text;
    }
    return result;
}

TEST(JSONReader, AcceptsEveryKindOfValue) {
    for (const std::string text : {"null",
                                   "true",
                                   "false",
                                   "0",
                                   "-0",
                                   "12",
                                   "-1.5",
                                   "1e5",
                                   "1E+5",
                                   "0.5e-3",
                                   "\"\"",
                                   "\"a\"",
                                   "[]",
                                   "[ ]",
                                   "[1]",
                                   "[1,2]",
                                   "[[],{}]",
                                   "{}",
                                   "{ }",
                                   R"({"a":1})",
                                   R"({"":{"a":[]},"b":2})",
                                   " \t\r\n[ 1 , { \"a\" : 2 } ] \n"}) {
        EXPECT_TRUE(isJSON(text)) << text;
    }
}

TEST(JSONReader, RefusesWhatIsNoValue) {
    for (const std::string text : {"",         " ",         "nul",
                                   "nulll",    "True",      "NaN",
                                   "Infinity", "-",         "+1",
                                   "01",       "-01",       "1.",
                                   ".5",       "1.e5",      "1e",
                                   "1e+",      "0x1",       "1_0",
                                   "--1",      "'a'",       "a",
                                   "[",        "]",         "[1",
                                   "[1,",      "[1,]",      "[,1]",
                                   "[1 2]",    "[1}",       "{",
                                   "}",        "{\"a\"",    "{a:1}",
                                   "{\"a\"}",  "{\"a\":}",  "{\"a\":1,}",
                                   "{,}",      "{\"a\" 1}", "{\"a\":1 \"b\":2}",
                                   "{1:2}",    "{\"a\":1]", "\"a",
                                   "/**/1",    "1//"}) {
        EXPECT_FALSE(isJSON(text)) << text;
    }
}

TEST(JSONReader, RefusesAnythingAfterTheValue) {
    for (int byte = 0; byte < 256; ++byte) {
        const char character = static_cast<char>(byte);
        const bool isBlank =
            character == ' ' || character == '\t' || character == '\n' || character == '\r';
        EXPECT_EQ(isJSON("{}" + std::string(1, character)), isBlank) << byte;
        EXPECT_EQ(isJSON("{} " + std::string(1, character)), isBlank) << byte;
    }
}

TEST(JSONReader, RefusesEveryBeginningOfAText) {
    const std::string text = R"({"a":[1.5e-3,"\u00e9\n",true,null],"é":{"b":false}})";
    ASSERT_TRUE(isJSON(text));
    for (std::size_t length = 0; length < text.size(); ++length) {
        EXPECT_FALSE(isJSON(text.substr(0, length))) << length;
    }
}

TEST(JSONReader, Goes512LevelsDeep) {
    EXPECT_TRUE(isJSON(repeated("[", 512) + repeated("]", 512)));
    EXPECT_FALSE(isJSON(repeated("[", 513) + repeated("]", 513)));
    EXPECT_TRUE(isJSON(repeated("{\"a\":", 511) + "[]" + repeated("}", 511)));
    EXPECT_FALSE(isJSON(repeated("{\"a\":", 512) + "[]" + repeated("}", 512)));
    EXPECT_TRUE(isJSON("[" + repeated("[[]],", 2000) + "0]"));
    EXPECT_FALSE(isJSON(repeated("[", 1'000'000)));
}

TEST(JSONReader, TakesOneByteOrderMarkAway) {
    EXPECT_EQ(foundation::withoutByteOrderMark("\xEF\xBB\xBF{}"), "{}");
    EXPECT_EQ(foundation::withoutByteOrderMark("\xEF\xBB\xBF\xEF\xBB\xBF{}"), "\xEF\xBB\xBF{}");
    EXPECT_EQ(foundation::withoutByteOrderMark("\xEF\xBB{}"), "\xEF\xBB{}");
    EXPECT_FALSE(isJSON("\xEF\xBB\xBF{}"));
}

TEST(JSONReader, SaysAboutWhereTheFaultIs) {
    JSONReader reader("[1, 2, x]");
    EXPECT_EQ(reader.skipValue(reader.begin()), nullptr);
    EXPECT_EQ(reader.lastValue(), 7u);
}

}  // namespace
