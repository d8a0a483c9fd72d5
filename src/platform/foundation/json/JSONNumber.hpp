#pragma once

#include <cstdint>
#include <limits>
#include <string_view>

namespace foundation {

/// The end of the JSON number that begins at `begin`; null where none does.
const char* endOfNumber(const char* begin, const char* end);

/// A whole number in two parts, since it may be any 64-bit integer, signed or not.
struct WholeNumber {
    bool negative;
    std::uint64_t magnitude;
};

/// Below, `number` must be a JSON number. A false answer means that it does not fit.

/// The nearest double; what is too small becomes zero, what is too large does not fit.
bool convert(std::string_view number, double& value);

/// Exact, however the number is written: 34.0 and 1e3 are whole, 1.5 is not.
bool convert(std::string_view number, WholeNumber& value);

template <class Integer>
bool convertToInteger(std::string_view number, Integer& value) {
    WholeNumber whole;
    if (!convert(number, whole)) {
        return false;
    }
    constexpr auto max = static_cast<std::uint64_t>(std::numeric_limits<Integer>::max());
    constexpr std::uint64_t lowest = std::numeric_limits<Integer>::is_signed ? max + 1 : 0;
    if (whole.magnitude > (whole.negative ? lowest : max)) {
        return false;
    }
    value = static_cast<Integer>(whole.negative ? 0 - whole.magnitude : whole.magnitude);
    return true;
}

}  // namespace foundation
