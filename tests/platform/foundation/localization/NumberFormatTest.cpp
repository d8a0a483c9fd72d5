#include "platform/foundation/localization/NumberFormat.hpp"
#include "support/SharedData.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <unicode/numberformatter.h>
#include <unicode/uloc.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <limits>
#include <thread>

namespace foundation {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

TEST(NumberFormat, IntegersTakeTheDigitsAndGroupingOfTheLocale) {
    struct Case {
        std::int64_t number;
        std::string locale;
        std::string text;
    };
    const Case cases[] = {
        {0, "es_ES", "0"},
        {1234, "es_ES", "1234"},
        {12345, "es_ES", "12.345"},
        {1234, "es", "1234"},
        {1234, "es_MX", "1,234"},
        {1234, "en_US", "1,234"},
        {1234, "de_DE", "1.234"},
        {1234, "de_CH", "1’234"},
        {1234, "fr_FR", "1\u202f234"},
        {1234, "ar_EG", "١٬٢٣٤"},
        {-5, "ar_EG", "\u061c-٥"},
        {1234, "en_US_POSIX", "1234"},
        {1234, "xx", "1234"},
        {-5, "es_ES", "-5"},
        {std::numeric_limits<std::int64_t>::max(), "en_US", "9,223,372,036,854,775,807"},
        {std::numeric_limits<std::int64_t>::min(), "es_ES", "-9.223.372.036.854.775.808"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(localizedInteger(c.number, {c.locale}), c.text) << c.number << " " << c.locale;
}

TEST(NumberFormat, IntegersOfFewDigitsAreWhatEveryLocaleWrites) {
    std::int32_t count = 0;
    const icu::Locale* locales = icu::Locale::getAvailableLocales(count);
    ASSERT_GT(count, 100);
    for (std::int32_t i = 0; i < count; ++i) {
        const std::string locale = locales[i].getName();
        const auto formatter = icu::number::NumberFormatter::withLocale(locales[i]);
        for (const std::int64_t number : {0, 7, 10, 45, 90, 99, 100, 101, 305, 999, 1000, 1001}) {
            UErrorCode code = U_ZERO_ERROR;
            std::string expected;
            formatter.formatInt(number, code).toString(code).toUTF8String(expected);
            ASSERT_TRUE(U_SUCCESS(code));
            EXPECT_EQ(localizedInteger(number, {locale}), expected) << number << " " << locale;
        }
    }
}

TEST(NumberFormat, DecimalsTakeTheSeparatorsOfTheLocale) {
    struct Case {
        double number;
        std::string locale;
        std::string text;
    };
    const Case cases[] = {
        {2.35, "es_ES", "2,4"},
        {2.35, "es_MX", "2.4"},
        {2.35, "fa_IR", "۲٫۴"},
        {-0.04, "es_ES", "-0,0"},
        {-0.0, "en_US", "-0.0"},
        {999.95, "es_ES", "1000,0"},
        {999.95, "en_US", "1,000.0"},
        {12345678.9, "es_ES", "12.345.678,9"},
        {1e22, "en_US", "10,000,000,000,000,000,000,000.0"},
        {notANumber, "es_ES", "NaN"},
        {infinity, "es_ES", "∞"},
        {-infinity, "es_ES", "-∞"},
        {infinity, "en_US_POSIX", "INF"},
        {infinity, "xx", "INF"},
        {3, "ar_EG", "٣٫٠"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(localizedDecimal(c.number, 1, {c.locale}), c.text) << c.number << " " << c.locale;
}

TEST(NumberFormat, OtherCountsOfDigits) {
    EXPECT_EQ(localizedDecimal(2.5, 0, {"es_ES"}), "2");
    EXPECT_EQ(localizedDecimal(3.5, 0, {"es_ES"}), "4");
    EXPECT_EQ(localizedDecimal(2.345, 2, {"es_ES"}), "2,34");
    EXPECT_EQ(localizedDecimal(0.1, 9, {"en_US"}), "0.100000000");
}

// Every hundredth, by its decimal digits: the last digit five goes to the even tenth.
TEST(NumberFormat, LocalizedHalvesGoToTheEvenDigitOfTheDecimalForm) {
    for (int hundredths = 0; hundredths <= 2000; ++hundredths) {
        int tenths = hundredths / 10;
        const int rest = hundredths % 10;
        if (rest > 5 || (rest == 5 && tenths % 2 == 1))
            ++tenths;
        const std::string expected =
            std::to_string(tenths / 10) + "," + std::to_string(tenths % 10);
        EXPECT_EQ(localizedDecimal(hundredths / 100.0, 1, {"es_ES"}), expected) << hundredths;
    }
}

TEST(NumberFormat, PlainOneAgreesWithTheCLibrary) {
    std::uint64_t seed = 1;
    for (int i = 0; i < 20'000; ++i) {
        seed = seed * 6364136223846793005u + 1442695040888963407u;
        const double number = i < 2001 ? i / 100.0 : std::bit_cast<double>(seed);
        if (std::isnan(number))
            continue;
        char expected[400];
        std::snprintf(expected, sizeof expected, "%.1f", number);
        EXPECT_EQ(formatFixed1(number), expected);
    }
}

TEST(NumberFormat, PlainOneRoundsTheBinaryValue) {
    EXPECT_EQ(formatFixed1(0.15), "0.1");
    EXPECT_EQ(formatFixed1(2.45), "2.5");
    EXPECT_EQ(formatFixed1(0.25), "0.2");
    EXPECT_EQ(formatFixed1(-0.04), "-0.0");
    EXPECT_EQ(formatFixed1(notANumber), "nan");
    EXPECT_EQ(formatFixed1(-notANumber), "nan");
    EXPECT_EQ(formatFixed1(-infinity), "-inf");
    EXPECT_EQ(formatFixed1(std::numeric_limits<double>::lowest()).size(), 312u);
}

TEST(NumberFormat, AnUnknownLocaleDoesNotTakeTheVariablesOfTheProcess) {
    // As if the process had been started with LANG=de_DE.
    UErrorCode code = U_ZERO_ERROR;
    const std::string before = uloc_getDefault();
    uloc_setDefault("de_DE", &code);
    for (const std::string locale : {"xx_YY", "zz_ES", "../../etc/passwd", "%s", "\xff\xfe"})
        EXPECT_EQ(localizedDecimal(1234.5, 1, {locale}), "1234.5") << locale;
    uloc_setDefault(before.c_str(), &code);
    EXPECT_TRUE(U_SUCCESS(code));
}

TEST(NumberFormat, ThreadsAndManyLocalesGetTheSameTexts) {
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([] {
            for (const char* locale :
                 {"es_ES", "en_US", "fr_FR", "de_DE", "it_IT", "pt_BR", "nl_NL",
                  "sv_SE", "da_DK", "fi_FI", "pl_PL", "cs_CZ", "hu_HU", "ro_RO",
                  "tr_TR", "el_GR", "ru_RU", "uk_UA", "ja_JP", "es_ES"}) {
                EXPECT_FALSE(localizedDecimal(12345.6, 1, {locale}).empty());
                EXPECT_EQ(localizedInteger(12345, {"es_ES"}), "12.345");
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

TEST(NumberFormat, AgreesWithTheReference) {
    const auto file = support::sharedData("oracle/text-and-numbers.json");
    if (!file)
        GTEST_SKIP() << "no reference data";
    const auto all = nlohmann::json::parse(std::ifstream(*file));
    for (const auto& row : all.at("formatos")) {
        const std::string digits = row.at("bits");
        std::uint64_t bits = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), bits, 16);
        const auto number = std::bit_cast<double>(bits);
        EXPECT_EQ(formatFixed1(number), row.at("sinLocale").get<std::string>());
        for (const char* locale : {"es_ES", "es_MX", "en_US", "de_DE", "ar_EG", "fr_FR", "es",
                                   "en_US_POSIX", "fa_IR", "de_CH", "xx", ""})
            EXPECT_EQ(localizedDecimal(number, 1, {locale}), row.at(locale).get<std::string>())
                << row.at("n") << " " << locale;
    }
    for (const auto& row : all.at("formatosEnteros")) {
        const std::int64_t number = std::stoll(row.at("n").get<std::string>());
        for (const char* locale : {"es_ES", "es_MX", "en_US", "de_DE", "ar_EG"})
            EXPECT_EQ(localizedInteger(number, {locale}) + " salidas sin medir",
                      row.at(locale).get<std::string>())
                << row.at("n") << " " << locale;
    }
}

}  // namespace
}  // namespace foundation
