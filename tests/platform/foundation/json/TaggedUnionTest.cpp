#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <tuple>
#include <variant>

namespace sample {

struct Named {
    std::string name;

    static constexpr std::tuple CodingKeys{foundation::CodingKey{"_0", &Named::name}};
    friend bool operator==(const Named&, const Named&) = default;
};

struct Toggled {
    static constexpr std::tuple<> CodingKeys{};
    friend bool operator==(const Toggled&, const Toggled&) = default;
};

struct Leveled {
    std::string name;
    double level;

    static constexpr std::tuple CodingKeys{foundation::CodingKey{"name", &Leveled::name},
                                           foundation::CodingKey{"level", &Leveled::level}};
    friend bool operator==(const Leveled&, const Leveled&) = default;
};

using Choice = std::variant<Named, Toggled, Leveled>;

constexpr std::array<std::string_view, 3> keys{"named", "toggled", "leveled"};

void decode(const foundation::Decoder& decoder, Choice& choice) {
    const foundation::KeyedDecodingContainer container = decoder.container();
    const std::size_t index = container.soleKey(keys);
    choice = std::array<Choice, 3>{Named{}, Toggled{}, Leveled{}}[index];
    std::visit([&](auto& chosen) { container.decode(keys[index], chosen); }, choice);
}

void encode(foundation::Encoder& encoder, const Choice& choice) {
    encoder.encodeObject([&] {
        std::visit([&](const auto& chosen) { encoder.encodeMember(keys[choice.index()], chosen); },
                   choice);
    });
}

}  // namespace sample

namespace {

using foundation::DecodingError;
using sample::Choice;

Choice decode(const std::string& text) {
    return foundation::JSONDecoder{}.decode<Choice>(text);
}

std::string refusal(const std::string& text) {
    try {
        decode(text);
        return "none";
    } catch (const DecodingError& error) {
        return std::string(name(error.kind)) + " " + error.place();
    }
}

TEST(TaggedUnion, IsCodedUnderTheKeyOfItsCase) {
    const auto check = [](const Choice& choice, const std::string& text) {
        EXPECT_EQ(foundation::JSONEncoder{}.encode(choice), text);
        EXPECT_EQ(decode(text), choice);
    };
    check(sample::Named{"p1"}, R"({"named":{"_0":"p1"}})");
    check(sample::Toggled{}, R"({"toggled":{}})");
    check(sample::Leveled{"a", 0.5}, R"({"leveled":{"name":"a","level":0.5}})");
}

TEST(TaggedUnion, NeedsExactlyOneOfItsKeys) {
    for (const std::string text : {R"({})", R"({"x":1})", R"({"toggled":{},"named":{"_0":"p"}})",
                                   R"({"leveled":null,"toggled":null})"}) {
        EXPECT_EQ(refusal(text), "typeMismatch ") << text;
    }
    try {
        decode("{}");
        FAIL() << "an empty object was decoded";
    } catch (const DecodingError& error) {
        EXPECT_EQ(error.debugDescription, "Invalid number of keys found, expected one.");
    }
    EXPECT_EQ(decode(R"({"x":[],"toggled":{"y":1},"Toggled":2})"), Choice(sample::Toggled{}));
    EXPECT_EQ(decode(R"({"toggled":{},"toggled":7})"), Choice(sample::Toggled{}));
}

TEST(TaggedUnion, ReportsFaultsInside) {
    EXPECT_EQ(refusal(R"({"toggled":7})"), "typeMismatch toggled");
    EXPECT_EQ(refusal(R"({"toggled":null})"), "valueNotFound toggled");
    EXPECT_EQ(refusal(R"({"named":{}})"), "keyNotFound named._0");
    EXPECT_EQ(refusal(R"({"leveled":{"level":"x","name":2}})"), "typeMismatch leveled.name");
    EXPECT_EQ(refusal(R"({"toggled":{"x":"\q"}})"), "dataCorrupted ");
    EXPECT_EQ(refusal(R"([])"), "typeMismatch ");
}

TEST(TaggedUnion, ReportsFaultsOfEncoding) {
    try {
        foundation::JSONEncoder{}.encode(Choice(sample::Leveled{"a", 1.0 / 0.0}));
        FAIL() << "infinity was written";
    } catch (const foundation::EncodingError& error) {
        EXPECT_EQ(error.codingPath, "leveled.level");
    }
}

}  // namespace
