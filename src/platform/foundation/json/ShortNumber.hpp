#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

/// Numbers as nearly all are written, with few digits and no exponent. Kept in a header, since most
/// of the time that reading a record takes goes into them.
namespace foundation {

/// A JSON number of at most 19 digits, taken in while it is read: `digits` / 10^`decimals`.
struct ShortNumber {
    std::uint64_t digits = 0;
    int decimals = 0;
    bool negative = false;
    const char* end = nullptr;  ///< null where no such number stands
};

constexpr int mostDigits = 19;

constexpr std::array<std::uint64_t, mostDigits + 1> powersOfTen = [] {
    std::array<std::uint64_t, mostDigits + 1> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i) {
        powers[i] = powers[i - 1] * 10;
    }
    return powers;
}();

constexpr std::array<double, mostDigits + 1> exactPowersOfTen = [] {
    std::array<double, mostDigits + 1> powers{};
    for (std::size_t i = 0; i < powers.size(); ++i) {
        powers[i] = static_cast<double>(powersOfTen[i]);
    }
    return powers;
}();

/// Up to here every whole number is a double.
constexpr std::uint64_t largestExact = std::uint64_t{1} << std::numeric_limits<double>::digits;

inline bool areEightDigits(std::uint64_t text) {
    return ((text & (text + 0x0606060606060606)) & 0xF0F0F0F0F0F0F0F0) == 0x3030303030303030;
}

/// Pairs of digits, then fours, then all eight, each step in one multiplication.
inline std::uint64_t eightDigits(std::uint64_t text) {
    text -= 0x3030303030303030;
    text = (text * 10 + (text >> 8)) & 0x00FF00FF00FF00FF;
    text = (text * 100 + (text >> 16)) & 0x0000FFFF0000FFFF;
    return (text * 10000 + (text >> 32)) & 0xFFFFFFFF;
}

/// 2^`exponent`, for exponents far from the ends of the range.
inline double powerOfTwo(int exponent) {
    constexpr int bias = std::numeric_limits<double>::max_exponent - 1;
    constexpr int mantissaBits = std::numeric_limits<double>::digits - 1;
    return std::bit_cast<double>(static_cast<std::uint64_t>(bias + exponent) << mantissaBits);
}

/// The double nearest to a quotient of whole numbers, neither of them 0: it is divided to more
/// digits than a double has, with the last one set if anything is left over, so that rounding it
/// once is rounding the exact quotient.
inline double nearestQuotient(std::uint64_t dividend, std::uint64_t divisor) {
    __extension__ using Wide = unsigned __int128;
    const int dividendShift = std::countl_zero(dividend);
    const int divisorShift = std::countl_zero(divisor);
    const Wide wide = static_cast<Wide>(dividend << dividendShift) << 62;
    const std::uint64_t normalized = divisor << divisorShift;
    const auto quotient = static_cast<std::uint64_t>(wide / normalized);
    const bool isExact = wide % normalized == 0;
    const auto rounded = static_cast<double>(static_cast<std::int64_t>(quotient | !isExact));
    return rounded * powerOfTwo(divisorShift - dividendShift - 62);
}

[[gnu::always_inline]] inline ShortNumber readShortNumber(const char* at, const char* end) {
    std::uint64_t digits = 0;
    const bool negative = at != end && *at == '-';
    at += negative;
    const char* const whole = at;
    for (; at != end && '0' <= *at && *at <= '9'; ++at) {
        digits = digits * 10 + static_cast<unsigned>(*at - '0');
    }
    const auto wholeDigits = at - whole;
    if (wholeDigits == 0 || (*whole == '0' && wholeDigits > 1)) {
        return {};
    }
    std::ptrdiff_t decimals = 0;
    if (at != end && *at == '.') {
        const char* const fraction = ++at;
        if constexpr (std::endian::native == std::endian::little) {
            for (std::uint64_t text; end - at >= 8; at += 8) {
                std::memcpy(&text, at, sizeof text);
                if (!areEightDigits(text)) {
                    break;
                }
                digits = digits * 100'000'000 + eightDigits(text);
            }
        }
        for (; at != end && '0' <= *at && *at <= '9'; ++at) {
            digits = digits * 10 + static_cast<unsigned>(*at - '0');
        }
        decimals = at - fraction;
        if (decimals == 0) {
            return {};
        }
    }
    if (wholeDigits + decimals > mostDigits || (at != end && (*at == 'e' || *at == 'E'))) {
        return {};
    }
    return {digits, static_cast<int>(decimals), negative, at};
}

inline double nearestDouble(const ShortNumber& number) {
    const auto power = static_cast<std::size_t>(number.decimals);
    // One division of two doubles rounds once too, if both are exact; these powers all are.
    const double magnitude = number.digits <= largestExact
                                 ? static_cast<double>(static_cast<std::int64_t>(number.digits)) /
                                       exactPowersOfTen[power]
                                 : nearestQuotient(number.digits, powersOfTen[power]);
    // Signs come as they like; setting one must not be a branch to be guessed.
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(magnitude) |
                                 std::uint64_t{number.negative} << 63);
}

}  // namespace foundation
