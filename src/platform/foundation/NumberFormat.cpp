#include "platform/foundation/NumberFormat.hpp"

#include "platform/foundation/LocaleObjects.hpp"

#include <unicode/locid.h>
#include <unicode/numberformatter.h>
#include <unicode/ures.h>

#include <array>
#include <charconv>
#include <cmath>
#include <memory>
#include <stdexcept>

namespace foundation {
namespace {

using Formatter = icu::number::LocalizedNumberFormatter;

/// ICU takes its own idea of the user's locale for one it does not know, which would make a text
/// depend on variables that have no say here; the plain locale stands for such a one.
icu::Locale knownLocale(const std::string& identifier) {
    UErrorCode code = U_ZERO_ERROR;
    UResourceBundle* resources = ures_open(nullptr, identifier.c_str(), &code);
    const std::unique_ptr<UResourceBundle, decltype(&ures_close)> owner(resources, &ures_close);
    const bool unknown = U_FAILURE(code) || code == U_USING_DEFAULT_WARNING;
    return icu::Locale(unknown ? "en_US_POSIX" : identifier.c_str());
}

std::shared_ptr<const Formatter> makeIntegerFormatter(const std::string& locale) {
    return std::make_shared<Formatter>(
        icu::number::NumberFormatter::withLocale(knownLocale(locale)));
}

std::string text(const icu::number::FormattedNumber& number, UErrorCode code) {
    const icu::UnicodeString formatted = number.toString(code);
    if (U_FAILURE(code))
        throw std::runtime_error(u_errorName(code));
    std::string result;
    return formatted.toUTF8String(result);
}

}  // namespace

std::string localizedInteger(std::int64_t number, const Locale& locale) {
    static LocaleObjects<Formatter> known;
    const auto formatter = known.object(locale.identifier, makeIntegerFormatter);
    UErrorCode code = U_ZERO_ERROR;
    return text(formatter->formatInt(number, code), code);
}

std::string localizedDecimal(double number, int fractionDigits, const Locale& locale) {
    static std::array<LocaleObjects<Formatter>, 10> known;
    const auto make = [&](const std::string& identifier) {
        return std::make_shared<const Formatter>(
            icu::number::NumberFormatter::withLocale(knownLocale(identifier))
                .precision(icu::number::Precision::fixedFraction(fractionDigits))
                .roundingMode(UNUM_ROUND_HALFEVEN));
    };
    const auto formatter =
        known.at(static_cast<std::size_t>(fractionDigits)).object(locale.identifier, make);
    UErrorCode code = U_ZERO_ERROR;
    return text(formatter->formatDouble(number, code), code);
}

std::string formatFixed1(double number) {
    if (std::isnan(number))
        return "nan";
    std::array<char, 400> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                   std::chars_format::fixed, 1);
    return {digits.data(), end.ptr};
}

}  // namespace foundation
