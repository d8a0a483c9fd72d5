#include "platform/foundation/json/JSONDecoder.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace {

using foundation::DecodingError;

struct Inner {
    std::string name;
    std::vector<double> values;

    static constexpr std::tuple CodingKeys{foundation::CodingKey{"name", &Inner::name},
                                           foundation::CodingKey{"values", &Inner::values}};
    friend bool operator==(const Inner&, const Inner&) = default;
};

struct Outer {
    bool flag;
    std::optional<std::string> note;
    std::vector<Inner> list;
    std::int64_t count;
    foundation::Date date;

    static constexpr std::tuple CodingKeys{
        foundation::CodingKey{"flag", &Outer::flag}, foundation::CodingKey{"note", &Outer::note},
        foundation::CodingKey{"list", &Outer::list}, foundation::CodingKey{"count", &Outer::count},
        foundation::CodingKey{"date", &Outer::date}};
    friend bool operator==(const Outer&, const Outer&) = default;
};

const Outer example{true, "x", {{"a", {1, 2}}, {"b", {}}}, 3, {0.5}};
const std::string exampleText =
    R"({"flag":true,"note":"x","list":[{"name":"a","values":[1,2]},{"name":"b","values":[]}],)"
    R"("count":3,"date":0.5})";

Outer decode(const std::string& text) {
    // Both ways to decode must give the same.
    std::optional<Outer> byParts;
    try {
        byParts = foundation::decodeByParts<Outer>(text);
    } catch (const DecodingError&) {
    }
    const Outer outer = foundation::JSONDecoder{}.decode<Outer>(text);
    EXPECT_EQ(byParts, outer) << text;
    return outer;
}

DecodingError refusal(const std::string& text) {
    try {
        decode(text);
    } catch (const DecodingError& error) {
        return error;
    }
    ADD_FAILURE() << "decoded: " << text;
    return {DecodingError::Kind::dataCorrupted, "", ""};
}

std::string kindAndPlace(const std::string& text) {
    const DecodingError error = refusal(text);
    return std::string(name(error.kind)) + " " + error.place();
}

TEST(JSONDecoder, TakesTextAndBytes) {
    EXPECT_EQ(decode(exampleText), example);
    EXPECT_EQ(foundation::JSONDecoder{}.decode<Outer>(std::as_bytes(std::span(exampleText))),
              example);
}

TEST(JSONDecoder, TakesBlanksAndOneByteOrderMark) {
    std::string spaced = "\xEF\xBB\xBF";
    for (const char character : exampleText) {
        const bool isPunctuation = std::string_view("{}[]:,").find(character) != std::string::npos;
        spaced +=
            isPunctuation ? std::string(" \n") + character + "\t\r" : std::string(1, character);
    }
    EXPECT_EQ(decode(spaced), example);
    EXPECT_EQ(kindAndPlace("\xEF\xBB\xBF" + spaced), "dataCorrupted ");
}

TEST(JSONDecoder, TheFirstOfEqualKeysCounts) {
    const std::string rest = exampleText.substr(1);
    EXPECT_FALSE(decode(R"({"flag":false,)" + rest).flag);
    EXPECT_FALSE(decode(R"({"fl\u0061g":false,)" + rest).flag);
    EXPECT_EQ(decode(R"({"note":null,)" + rest).note, std::nullopt);
    EXPECT_EQ(decode(exampleText.substr(0, exampleText.size() - 1) + R"(,"count":"x"})"), example);
    EXPECT_EQ(kindAndPlace(R"({"flag":0,)" + rest), "typeMismatch flag");
}

TEST(JSONDecoder, ComparesKeysWithoutTheirEscapes) {
    EXPECT_EQ(
        decode(R"({"\u0066lag":true,"n\u006fte":"x","list":[],"count":3,"\u0064\u0061te":0})").note,
        "x");
    EXPECT_EQ(kindAndPlace(R"({"Flag":true,"list":[],"count":3,"date":0})"), "keyNotFound flag");
    EXPECT_EQ(kindAndPlace(R"({"flag ":true,"list":[],"count":3,"date":0})"), "keyNotFound flag");
}

TEST(JSONDecoder, RefusesMalformedTextUnderKeysThatNobodyReads) {
    const std::string rest = exampleText.substr(1);
    for (const std::string value : {"01", "\"\\q\"", "\"\\ud800\"", "\"\xFF\"", "[1,]", "tru", "1e",
                                    "\"\t\"", "{\"a\" 1}", "{\"\\x\":1}"}) {
        EXPECT_EQ(kindAndPlace(R"({"other":)" + value + "," + rest), "dataCorrupted ") << value;
        EXPECT_EQ(kindAndPlace(R"({"other":[{"a":)" + value + "}]," + rest), "dataCorrupted ")
            << value;
    }
    EXPECT_EQ(decode(R"({"other":1e999,)" + rest), example);
}

TEST(JSONDecoder, CountsTheLevelsAroundUnreadValues) {
    const auto text = [](std::size_t depth) {
        return R"({"other":)" + std::string(depth, '[') + std::string(depth, ']') + "," +
               exampleText.substr(1);
    };
    EXPECT_EQ(decode(text(511)), example);
    EXPECT_EQ(kindAndPlace(text(512)), "dataCorrupted ");
}

TEST(JSONDecoder, RefusesTextOfAnyDepth) {
    constexpr std::size_t deep = 1'000'000;
    EXPECT_EQ(kindAndPlace(std::string(deep, '[')), "dataCorrupted ");
    std::string objects;
    for (std::size_t i = 0; i < deep; ++i) {
        objects += "{\"a\":";
    }
    EXPECT_EQ(kindAndPlace(objects), "dataCorrupted ");
}

TEST(JSONDecoder, MeetsAMalformedNumberBeforeAKeyThatIsMissingLater) {
    EXPECT_EQ(kindAndPlace(R"({"flag":true,"list":[{"name":"","values":[01]}]})"),
              "dataCorrupted ");
    EXPECT_EQ(kindAndPlace(R"({"flag":true,"list":[{"name":"","values":[1]}]})"),
              "keyNotFound count");
}

TEST(JSONDecoder, NamesThePlaceOfAMissingKeyAndItsObject) {
    const DecodingError error =
        refusal(R"({"flag":true,"list":[{"name":"a","values":[]},{"name":"b"}]})");
    EXPECT_EQ(error.kind, DecodingError::Kind::keyNotFound);
    EXPECT_EQ(error.codingPath, "list.1");
    EXPECT_EQ(error.missingKey, "values");
    EXPECT_EQ(error.place(), "list.1.values");
    EXPECT_EQ(refusal("{}").place(), "flag");
}

TEST(JSONDecoder, TellsNullFromAWrongType) {
    EXPECT_EQ(kindAndPlace("null"), "valueNotFound ");
    EXPECT_EQ(kindAndPlace("[]"), "typeMismatch ");
    EXPECT_EQ(kindAndPlace(R"({"flag":null})"), "typeMismatch flag");
    EXPECT_EQ(kindAndPlace(R"({"flag":true,"list":null})"), "valueNotFound list");
    EXPECT_EQ(kindAndPlace(R"({"flag":true,"list":[null]})"), "valueNotFound list.0");
    EXPECT_EQ(kindAndPlace(R"({"flag":true,"list":[{"name":"","values":[0,null]}]})"),
              "valueNotFound list.0.values.1");
    EXPECT_EQ(kindAndPlace(R"({"flag":true,"note":7})"), "typeMismatch note");
}

TEST(JSONDecoder, SaysWhatItFoundInstead) {
    const auto said = [](const std::string& value) {
        return refusal(R"({"flag":)" + value + "}").debugDescription;
    };
    EXPECT_EQ(said("null"), "Expected to decode Bool but found null instead.");
    EXPECT_EQ(said("7"), "Expected to decode Bool but found number instead.");
    EXPECT_EQ(said("\"\""), "Expected to decode Bool but found a string instead.");
    EXPECT_EQ(said("[]"), "Expected to decode Bool but found an array instead.");
    EXPECT_EQ(said("{}"), "Expected to decode Bool but found a dictionary instead.");
    EXPECT_EQ(refusal(R"({"flag":true,"note":false})").debugDescription,
              "Expected to decode String but found bool instead.");
    EXPECT_EQ(refusal(R"({"flag":true,"list":null})").debugDescription,
              "Cannot get unkeyed decoding container -- found null value instead");
    EXPECT_EQ(refusal("{}").debugDescription, "No value associated with key \"flag\".");
}

TEST(JSONDecoder, SaysWhereMalformedTextIs) {
    EXPECT_EQ(refusal("{\"flag\":true,\n \"list\":[1,\n  x]}").debugDescription,
              "The given data was not valid JSON. (line 3, column 3)");
    EXPECT_EQ(refusal(R"({"flag":true,"list":[],"count":1.5,"date":0})").debugDescription,
              "Parsed JSON number <1.5> at count does not fit in Int.");
}

TEST(JSONDecoder, DecodesValuesThatAreNoRecords) {
    const foundation::JSONDecoder decoder;
    EXPECT_EQ(decoder.decode<double>(" 1.5 "), 1.5);
    EXPECT_EQ(decoder.decode<std::string>("\"a\""), "a");
    EXPECT_EQ(decoder.decode<std::vector<std::int64_t>>("[1,2]"),
              (std::vector<std::int64_t>{1, 2}));
    EXPECT_THROW(decoder.decode<double>("1 2"), DecodingError);
    EXPECT_THROW(decoder.decode<std::vector<double>>("[]x"), DecodingError);
}

}  // namespace
