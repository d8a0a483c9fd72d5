#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

template <class T>
std::string encode(const T& value) {
    return foundation::JSONEncoder{}.encode(value);
}

TEST(JSONEncoder, WritesPlainValues) {
    EXPECT_EQ(encode(true), "true");
    EXPECT_EQ(encode(false), "false");
    EXPECT_EQ(encode(std::int64_t{-7}), "-7");
    EXPECT_EQ(encode(std::uint32_t{4294967295}), "4294967295");
    EXPECT_EQ(encode(foundation::Date{1.5}), "1.5");
    EXPECT_EQ(encode(std::vector<double>{}), "[]");
    EXPECT_EQ(encode(std::vector<std::string>{"a", "b"}), R"(["a","b"])");
}

TEST(JSONEncoder, WritesTheShortestNumber) {
    EXPECT_EQ(encode(1.0), "1");
    EXPECT_EQ(encode(0.1), "0.1");
    EXPECT_EQ(encode(0.0), "0");
    EXPECT_EQ(encode(-0.0), "-0");
    EXPECT_EQ(encode(-2.25), "-2.25");
    EXPECT_EQ(encode(785000000.125), "785000000.125");
    EXPECT_EQ(encode(0.0001), "0.0001");
    EXPECT_EQ(encode(0.00001), "1e-05");
    EXPECT_EQ(encode(0.00012345), "0.00012345");
    EXPECT_EQ(encode(5e-324), "5e-324");
    EXPECT_EQ(encode(1e15), "1000000000000000");
    EXPECT_EQ(encode(9007199254740992.0), "9007199254740992");
    EXPECT_EQ(encode(-9007199254740992.0), "-9007199254740992");
    EXPECT_EQ(encode(9007199254740994.0), "9.007199254740994e+15");
    EXPECT_EQ(encode(1e16), "1e+16");
    EXPECT_EQ(encode(1e21), "1e+21");
    EXPECT_EQ(encode(std::numeric_limits<double>::max()), "1.7976931348623157e+308");
}

TEST(JSONEncoder, NumbersReadBackTheSame) {
    std::mt19937_64 random(11);
    for (int i = 0; i < 100'000; ++i) {
        // All doubles, and those that a level or a gain may have.
        const double value = i % 2 == 0 ? std::bit_cast<double>(random())
                                        : std::ldexp(static_cast<double>(random()), -60);
        if (std::isfinite(value)) {
            const double back = foundation::JSONDecoder{}.decode<double>(encode(value));
            ASSERT_EQ(std::bit_cast<std::uint64_t>(back), std::bit_cast<std::uint64_t>(value));
        }
    }
}

TEST(JSONEncoder, RefusesNumbersThatAreNotFinite) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {infinity, -infinity, std::nan("")}) {
        EXPECT_THROW(encode(value), foundation::EncodingError);
    }
    try {
        encode(std::vector<double>{0, -infinity});
        FAIL() << "infinity was written";
    } catch (const foundation::EncodingError& error) {
        EXPECT_EQ(error.codingPath, "1");
        EXPECT_STREQ(error.what(), "Unable to encode Double.-inf directly in JSON.");
    }
}

TEST(JSONEncoder, EscapesWhatItMustAndTheSlash) {
    EXPECT_EQ(encode(std::string("a/b\"c\\d")), R"("a\/b\"c\\d")");
    EXPECT_EQ(encode(std::string("\b\f\n\r\t")), R"("\b\f\n\r\t")");
    EXPECT_EQ(encode(std::string("\0\x01\x1f", 3)), R"("\u0000\u0001\u001f")");
    EXPECT_EQ(encode(std::string("\x7f é 😀 \u2028")), "\"\x7f é 😀 \u2028\"");
}

TEST(JSONEncoder, StringsReadBackTheSame) {
    std::string all;
    for (char character = 0; character < 0x7F; ++character) {
        all += character;
    }
    all += "é€😀";
    EXPECT_EQ(foundation::JSONDecoder{}.decode<std::string>(encode(all)), all);
}

TEST(JSONEncoder, RefusesStringsThatAreNotUTF8) {
    for (const std::string text : {"\x80", "\xFF", "a\xC3", "\xED\xA0\x80"}) {
        EXPECT_THROW(encode(text), foundation::EncodingError);
    }
}

}  // namespace
