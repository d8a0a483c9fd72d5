#include "platform/foundation/localization/NumberFormat.hpp"

#include "platform/foundation/localization/LocaleObjects.hpp"

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

std::string text(const icu::number::FormattedNumber& number, UErrorCode code) {
    const icu::UnicodeString formatted = number.toString(code);
    if (U_FAILURE(code))
        throw std::runtime_error(u_errorName(code));
    std::string result;
    return formatted.toUTF8String(result);
}

/// The integers of a locale. Numbers that no locale groups are put together from its ten digits:
/// they are nearly all the numbers that a widget shows, and ICU takes its time for each.
class Integers {
  public:
    explicit Integers(const std::string& locale)
        : formatter_(icu::number::NumberFormatter::withLocale(knownLocale(locale))) {
        for (std::size_t digit = 0; digit < digits_.size(); ++digit)
            digits_[digit] = formatted(static_cast<std::int64_t>(digit));
    }

    std::string localized(std::int64_t number) const {
        if (number < 0 || number >= 1000)
            return formatted(number);
        std::string result;
        for (std::int64_t place = number >= 100  ? 100
                                  : number >= 10 ? 10
                                                 : 1;
             place > 0; place /= 10)
            result += digits_[static_cast<std::size_t>(number / place % 10)];
        return result;
    }

  private:
    std::string formatted(std::int64_t number) const {
        UErrorCode code = U_ZERO_ERROR;
        return text(formatter_.formatInt(number, code), code);
    }

    Formatter formatter_;
    std::array<std::string, 10> digits_;
};

}  // namespace

std::string localizedInteger(std::int64_t number, const Locale& locale) {
    static LocaleObjects<Integers> known;
    const auto make = [](const std::string& identifier) {
        return std::make_shared<const Integers>(identifier);
    };
    return known.object(locale.identifier, make)->localized(number);
}

std::string localizedDecimal(double number, int fractionDigits, const Locale& locale) {
    static std::array<LocaleObjects<Formatter>, 10> known;
    const auto make = [&](const std::string& identifier) {
        return std::make_shared<const Formatter>(
            icu::number::NumberFormatter::withLocale(knownLocale(identifier))
                .precision(icu::number::Precision::fixedFraction(fractionDigits))
                .roundingMode(UNUM_ROUND_HALFEVEN));
    };
    const Formatter* const formatter =
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
