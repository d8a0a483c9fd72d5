#include "platform/foundation/json/JSONDecoder.hpp"
#include "support/SharedData.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <tuple>

namespace {

namespace fs = std::filesystem;

/// Of the texts on which readers may differ, the ones accepted: numbers beyond every type where
/// nobody reads them, and the byte-order mark. What is not UTF-8 and lone surrogates are refused.
const std::set<std::string> accepted{
    "i_number_double_huge_neg_exp.json",  "i_number_huge_exp.json",
    "i_number_neg_int_huge_exp.json",     "i_number_pos_double_huge_exp.json",
    "i_number_real_neg_overflow.json",    "i_number_real_pos_overflow.json",
    "i_number_real_underflow.json",       "i_number_too_big_neg_int.json",
    "i_number_too_big_pos_int.json",      "i_number_very_big_negative_int.json",
    "i_structure_500_nested_arrays.json", "i_structure_UTF-8_BOM_empty_object.json",
};

std::string contents(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Reads nothing, so that only the text's form counts.
struct Nothing {
    static constexpr std::tuple<> CodingKeys{};
};

bool isJSON(const std::string& text) {
    try {
        foundation::JSONDocument(text).requireWellFormed();
        return true;
    } catch (const foundation::DecodingError&) {
        return false;
    }
}

bool isJSONUnderUnreadKey(const std::string& text) {
    try {
        foundation::JSONDecoder{}.decode<Nothing>("{\"unread\":" + text + "}");
        return true;
    } catch (const foundation::DecodingError&) {
        return false;
    }
}

TEST(JSONTestSuite, EveryTextGetsItsVerdict) {
    const auto folder = support::sharedData("json-test-suite/test_parsing");
    if (!folder) {
        GTEST_SKIP() << "the collection is not here";
    }
    int count = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(*folder)) {
        const std::string name = entry.path().filename();
        const std::string text = contents(entry.path());
        const bool isExpected = name[0] == 'y' || accepted.contains(name);
        EXPECT_EQ(isJSON(text), isExpected) << name;
        ++count;

        // A mark may stand only at the very beginning.
        if (!text.starts_with("\xEF\xBB\xBF")) {
            EXPECT_EQ(isJSONUnderUnreadKey(text), isExpected) << name;
        }
    }
    EXPECT_EQ(count, 318);
}

}  // namespace
