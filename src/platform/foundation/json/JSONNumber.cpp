#include "platform/foundation/json/JSONNumber.hpp"

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>

namespace foundation {

namespace {

/// Far beyond every exponent that makes a difference, and far from overflow.
constexpr std::int64_t largestExponent = 1'000'000'000'000;

/// `digits` × 10^`exponent`, the digits without zeros before or after them; none for zero.
struct Decimal {
    bool negative = false;
    std::string digits;
    std::int64_t exponent = 0;
};

Decimal decimal(std::string_view number) {
    Decimal decimal;
    bool inFraction = false;
    std::size_t at = 0;
    if (number[0] == '-') {
        decimal.negative = true;
        ++at;
    }
    for (; at < number.size() && number[at] != 'e' && number[at] != 'E'; ++at) {
        if (number[at] == '.') {
            inFraction = true;
            continue;
        }
        decimal.exponent -= inFraction;
        if (number[at] != '0' || !decimal.digits.empty()) {
            decimal.digits += number[at];
        }
    }
    if (at < number.size()) {
        const char* const end = number.data() + number.size();
        const char* begin = number.data() + at + 1;
        begin += *begin == '+';
        std::int64_t exponent = *begin == '-' ? -largestExponent : largestExponent;
        std::from_chars(begin, end, exponent);
        decimal.exponent += std::clamp(exponent, -largestExponent, largestExponent);
    }
    while (!decimal.digits.empty() && decimal.digits.back() == '0') {
        decimal.digits.pop_back();
        ++decimal.exponent;
    }
    return decimal;
}

}  // namespace

const char* endOfNumber(const char* at, const char* end) {
    const auto takeDigits = [&] {
        const char* const begin = at;
        while (at != end && '0' <= *at && *at <= '9') {
            ++at;
        }
        return at - begin;
    };
    if (at != end && *at == '-') {
        ++at;
    }
    const char* const whole = at;
    const auto wholeDigits = takeDigits();
    if (wholeDigits == 0 || (*whole == '0' && wholeDigits > 1)) {
        return nullptr;
    }
    if (at != end && *at == '.') {
        ++at;
        if (takeDigits() == 0) {
            return nullptr;
        }
    }
    if (at != end && (*at == 'e' || *at == 'E')) {
        ++at;
        if (at != end && (*at == '+' || *at == '-')) {
            ++at;
        }
        if (takeDigits() == 0) {
            return nullptr;
        }
    }
    return at;
}

bool convert(std::string_view number, double& value) {
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec != std::errc::result_out_of_range) {
        return true;
    }
    // Which side it left the range on is not said.
    const Decimal exact = decimal(number);
    const bool tooLarge = static_cast<std::int64_t>(exact.digits.size()) + exact.exponent > 0;
    value = exact.negative ? -0.0 : 0.0;
    return !tooLarge;
}

bool convert(std::string_view number, WholeNumber& value) {
    const Decimal exact = decimal(number);
    value = {exact.negative, 0};
    if (exact.digits.empty()) {
        return true;
    }
    constexpr std::int64_t mostDigits = std::numeric_limits<std::uint64_t>::digits10 + 1;
    if (exact.exponent < 0 || exact.exponent > mostDigits) {
        return false;
    }
    const std::string digits =
        exact.digits + std::string(static_cast<std::size_t>(exact.exponent), '0');
    const auto result =
        std::from_chars(digits.data(), digits.data() + digits.size(), value.magnitude);
    return result.ec == std::errc();
}

}  // namespace foundation
