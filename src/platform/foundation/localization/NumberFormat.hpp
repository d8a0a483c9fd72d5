#pragma once

#include "platform/foundation/localization/Locale.hpp"

#include <cstdint>
#include <string>

/// Numbers as text. Any thread; never fail. Halves of a localized number go to the even digit of
/// its shortest decimal form (2.45 to 2.4), those of the plain one by its exact binary value (2.45
/// to 2.5).
namespace foundation {

/// With the locale's digits and grouping.
std::string localizedInteger(std::int64_t number, const Locale& locale);

/// With the locale's digits, grouping and decimal separator. Requires 0 <= fractionDigits <= 9.
std::string localizedDecimal(double number, int fractionDigits, const Locale& locale);

/// As "%.1f" prints it without a locale: a point, no grouping, "nan", "inf".
std::string formatFixed1(double number);

}  // namespace foundation
