#include "platform/foundation/Environment.hpp"
#include "platform/foundation/localization/LocalizedString.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

namespace foundation {
namespace {

using namespace std::string_literals;

class LocalizedString : public testing::Test {
  protected:
    void table(std::string_view text) { folder_.write("en.lproj/Localizable.strings", text); }
    void plurals(std::string_view text) { folder_.write("en.lproj/Localizable.stringsdict", text); }

    std::string text(std::string_view key,
                     const std::vector<FormatArgument>& arguments = {},
                     const std::string& locale = "es_ES") const {
        return localizedString(key, *Bundle::open(folder_.path() / "en.lproj"), {locale},
                               arguments);
    }

  private:
    support::TemporaryFolder folder_;
};

TEST_F(LocalizedString, WithoutAnEntryTheKeyIsTheText) {
    table("");
    EXPECT_EQ(text("mudo"), "mudo");
    EXPECT_EQ(text("ahora: %@", {"Música"s}), "ahora: Música");
    EXPECT_EQ(text("%lld salidas sin medir", {std::int64_t{12345}}), "12.345 salidas sin medir");
    EXPECT_EQ(text("±%.1f", {2.35}), "±2,4");
    EXPECT_EQ(text("±%.1f", {2.35}, "es_MX"), "±2.4");
}

TEST_F(LocalizedString, AnEntryIsTheText) {
    table(R"("mudo" = "muted"; "ahora: %@" = "now: %@"; vacio = "";)");
    EXPECT_EQ(text("mudo"), "muted");
    EXPECT_EQ(text("vacio"), "");
    EXPECT_EQ(text("ahora: %@", {"50%@"s}), "now: 50%@");
}

TEST_F(LocalizedString, WithoutArgumentsNothingIsFormatted) {
    table(R"("100%" = "100 %% %@";)");
    EXPECT_EQ(text("100%"), "100 %% %@");
    EXPECT_EQ(text("%% %lld"), "%% %lld");
}

TEST_F(LocalizedString, WithArgumentsADoubledPerCentSignIsOne) {
    table("");
    EXPECT_EQ(text("%lld%%", {std::int64_t{45}}), "45%");
}

TEST_F(LocalizedString, ATranslationMayTurnTheArgumentsRound) {
    table(R"("%@ %lld" = "%2$lld of %1$@";)");
    EXPECT_EQ(text("%@ %lld", {"a"s, std::int64_t{3}}), "3 of a");
}

TEST_F(LocalizedString, ATranslationThatDoesNotFitGivesWayToTheKey) {
    for (const char* wrong :
         {"now: %lld", "now: %@ %@", "now: %s", "now: %n", "now: %", "now: %2$@", "%.1f"}) {
        table("\"ahora: %@\" = \""s + wrong + "\"; /* "s + wrong + " */");
        EXPECT_EQ(text("ahora: %@", {"x"s}), "ahora: x") << wrong;
    }
}

TEST_F(LocalizedString, AKeyThatDoesNotFitIsShownAsItStands) {
    table("");
    EXPECT_EQ(text("%lld %s", {"x"s}), "%lld %s");
}

TEST_F(LocalizedString, PluralsOverrideAndWithoutArgumentsTheKeyRemains) {
    table("\"%lld x\" = \"plain %lld\";");
    plurals(R"(<plist><dict><key>%lld x</key><dict>
        <key>NSStringLocalizedFormatKey</key><string>%#@n@</string>
        <key>n</key><dict>
            <key>NSStringFormatSpecTypeKey</key><string>NSStringPluralRuleType</string>
            <key>NSStringFormatValueTypeKey</key><string>lld</string>
            <key>one</key><string>just one</string>
            <key>other</key><string>%lld exes</string>
        </dict></dict></dict></plist>)");
    EXPECT_EQ(text("%lld x", {std::int64_t{1}}), "just one");
    EXPECT_EQ(text("%lld x", {std::int64_t{12345}}), "12.345 exes");
    EXPECT_EQ(text("%lld x", {"wrong"s}), "%lld x");
    EXPECT_EQ(text("%lld x"), "%lld x");
}

TEST(Environment, OfTheProcessHoldsItsBundleAndARunningClock) {
    const Environment environment = processEnvironment();
    EXPECT_GT(environment.clock.now(), Date{800'000'000});
    EXPECT_EQ(environment.locale, Locale::current());
    EXPECT_EQ(environment.mainBundle.path(), Bundle::main().path());
    EXPECT_EQ(environment.fileManager.containerURL(""), std::nullopt);
}

}  // namespace
}  // namespace foundation
