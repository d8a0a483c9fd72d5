#include "platform/foundation/json/JSONNumber.hpp"
#include "platform/foundation/json/JSONReader.hpp"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>
#include <random>
#include <string>

namespace {

template <class Number>
std::optional<Number> number(const std::string& text) {
    foundation::JSONReader reader(text);
    Number value{};
    return reader.isAtEnd(reader.read(reader.begin(), value)) ? std::optional(value) : std::nullopt;
}

std::optional<std::uint64_t> bits(const std::string& text) {
    const auto value = number<double>(text);
    return value ? std::optional(std::bit_cast<std::uint64_t>(*value)) : std::nullopt;
}

TEST(JSONNumber, IsTheNearestDouble) {
    std::mt19937_64 random(5);
    for (int i = 0; i < 200'000; ++i) {
        // Every count of digits and every place of the point, to beyond the forms that are read
        // fast.
        const std::size_t count = 1 + random() % 22;
        std::string digits;
        while (digits.size() < count) {
            digits += static_cast<char>('0' + random() % 10);
        }
        const std::size_t whole = random() % (count + 1);
        std::string text = whole == 0 ? "0" : digits.substr(0, whole);
        if (text.size() > 1 && text[0] == '0') {
            text[0] = '7';
        }
        if (whole < count) {
            text += "." + digits.substr(whole);
        }
        text.insert(0, random() % 2, '-');
        ASSERT_EQ(number<double>(text), std::strtod(text.c_str(), nullptr)) << text;
    }
}

TEST(JSONNumber, BreaksTiesToTheEvenDouble) {
    EXPECT_EQ(number<double>("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(number<double>("9007199254740995"), 9007199254740996.0);
    EXPECT_EQ(number<double>("9007199254740993.1"), 9007199254740994.0);
    EXPECT_EQ(number<double>("9007199254740992.999"), 9007199254740992.0);
    EXPECT_EQ(number<double>("0.5000000000000000000"), 0.5);
    EXPECT_EQ(number<double>("9999999999999999999"), 1e19);
}

TEST(JSONNumber, KeepsEveryDoubleThatIsWrittenWithAllItsDigits) {
    std::mt19937_64 random(6);
    for (int i = 0; i < 100'000; ++i) {
        const auto value = std::bit_cast<double>(random());
        if (!std::isfinite(value)) {
            continue;
        }
        std::array<char, 64> text;
        const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
        ASSERT_EQ(bits(std::string(text.data(), end)), std::bit_cast<std::uint64_t>(value));
    }
}

TEST(JSONNumber, KeepsTheSignOfZero) {
    for (const std::string text : {"-0", "-0.0", "-0e5", "-0.000e-999", "-1e-999"}) {
        EXPECT_EQ(bits(text), std::bit_cast<std::uint64_t>(-0.0)) << text;
        EXPECT_EQ(bits(text.substr(1)), std::bit_cast<std::uint64_t>(0.0)) << text;
    }
}

TEST(JSONNumber, TooSmallBecomesZeroAndTooLargeDoesNotFit) {
    EXPECT_EQ(number<double>("5e-324"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(number<double>("2.5e-324"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(number<double>("2.4e-324"), 0.0);
    EXPECT_EQ(number<double>("1e-99999999999999999999"), 0.0);
    EXPECT_EQ(number<double>("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(number<double>("0." + std::string(400, '0') + "1e401"), 1.0);
    EXPECT_EQ(number<double>("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(number<double>("1.7976931348623159e308"), std::nullopt);
    EXPECT_EQ(number<double>("-1e309"), std::nullopt);
    EXPECT_EQ(number<double>("1e99999999999999999999"), std::nullopt);
    EXPECT_EQ(number<double>("0e99999999999999999999"), 0.0);
    EXPECT_EQ(number<double>(std::string(400, '1')), std::nullopt);
    EXPECT_EQ(number<double>(std::string(400, '1') + "e-399"), 10.0 / 9);
}

TEST(JSONNumber, WholeNumbersMayBeWrittenAnyWay) {
    for (const std::string text :
         {"34", "34.0", "3.4e1", "340e-1", "0.034E+3", "34.000000000000000000"}) {
        EXPECT_EQ(number<std::int64_t>(text), 34) << text;
        EXPECT_EQ(number<std::int64_t>("-" + text), -34) << text;
        EXPECT_EQ(number<std::uint32_t>(text), 34u) << text;
        EXPECT_EQ(number<std::uint32_t>("-" + text), std::nullopt) << text;
    }
    for (const std::string text : {"0", "-0", "0.0", "-0e999", "0e-999"}) {
        EXPECT_EQ(number<std::int64_t>(text), 0) << text;
        EXPECT_EQ(number<std::uint32_t>(text), 0u) << text;
    }
}

TEST(JSONNumber, FractionsAreNoWholeNumbers) {
    for (const std::string text : {"1.5", "1e-1", "3.000000000000000000001", "1e-999999999999"}) {
        EXPECT_EQ(number<std::int64_t>(text), std::nullopt) << text;
    }
}

TEST(JSONNumber, WholeNumbersAreExactUpToTheirLimits) {
    constexpr auto max = std::numeric_limits<std::int64_t>::max();
    constexpr auto min = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(number<std::int64_t>("9223372036854775807"), max);
    EXPECT_EQ(number<std::int64_t>("9223372036854775807.0"), max);
    EXPECT_EQ(number<std::int64_t>("922337203685477580.7e1"), max);
    EXPECT_EQ(number<std::int64_t>("9223372036854775808"), std::nullopt);
    EXPECT_EQ(number<std::int64_t>("-9223372036854775808"), min);
    EXPECT_EQ(number<std::int64_t>("-9223372036854775809"), std::nullopt);
    EXPECT_EQ(number<std::int64_t>("18446744073709551617"), std::nullopt);
    EXPECT_EQ(number<std::int64_t>("1e19"), std::nullopt);
    EXPECT_EQ(number<std::int64_t>("1e99999999999999999999"), std::nullopt);
    EXPECT_EQ(number<std::uint32_t>("4294967295"), 4294967295u);
    EXPECT_EQ(number<std::uint32_t>("4294967296"), std::nullopt);
}

TEST(JSONNumber, AWholeNumberHoldsEveryInteger) {
    const auto magnitude = [](const std::string& text) {
        foundation::WholeNumber number{};
        return foundation::convert(text, number) ? std::optional(number.magnitude) : std::nullopt;
    };
    EXPECT_EQ(magnitude("1e19"), 10'000'000'000'000'000'000u);
    EXPECT_EQ(magnitude("18446744073709551615"), std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(magnitude("18446744073709551616"), std::nullopt);
    EXPECT_EQ(magnitude("1e20"), std::nullopt);
}

}  // namespace
