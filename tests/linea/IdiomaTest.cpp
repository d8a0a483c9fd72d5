#include "linea/Idioma.hpp"
#include "platform/foundation/localization/LocalizedString.hpp"
#include "platform/views/view/BuildEnvironment.hpp"
#include "support/TemporaryFolder.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace nurva {
namespace {

/// A bundle in Spanish and English that says in each text where it comes from.
struct IdiomaTest : testing::Test {
    IdiomaTest() {
        carpeta.write("es.lproj/Localizable.strings",
                      "\"mudo\" = \"mudo (es)\"; \"dB\" = \"dB (es)\";");
        carpeta.write("en.lproj/Localizable.strings",
                      "\"mudo\" = \"muted (en)\"; \"dB\" = \"dB (en)\";");
        carpeta.write("afuera/Localizable.strings", "\"mudo\" = \"afuera\";");
    }
    support::TemporaryFolder carpeta;
    support::World mundo{foundation::Bundle::localized(carpeta.path(), {"es"})};
    views::BuildScope construccion{mundo.environment};
};

TEST_F(IdiomaTest, IsTheMainBundleWithoutALanguage) {
    Idioma::fijar(std::nullopt);
    EXPECT_EQ(Idioma::texto("mudo"), "mudo (es)");
}

TEST_F(IdiomaTest, TakesTheTextsOfTheLanguagesFolder) {
    Idioma::fijar("en");
    EXPECT_EQ(Idioma::texto("mudo"), "muted (en)");
    EXPECT_EQ(Idioma::paquete().path(), carpeta.path() / "en.lproj");
}

TEST_F(IdiomaTest, GoesBackToTheMainBundleForALanguageWithoutAFolder) {
    for (const char* codigo : {"xx", "", "EN", "en-US", "en_US", "en.lproj", "../en", "./en",
                               "afuera", "../afuera", "/en"}) {
        Idioma::fijar("en");
        Idioma::fijar(codigo);
        EXPECT_EQ(Idioma::texto("mudo"), "mudo (es)") << codigo;
    }
    Idioma::fijar("en");
    Idioma::fijar(std::nullopt);
    EXPECT_EQ(Idioma::texto("mudo"), "mudo (es)");
}

TEST_F(IdiomaTest, ShowsTheKeyWhereTheLanguageLacksTheText) {
    Idioma::fijar("en");
    EXPECT_EQ(Idioma::texto("Sin medir"), "Sin medir");
}

TEST_F(IdiomaTest, LeavesTextsWithoutABundleToTheSystemsLanguage) {
    Idioma::fijar("en");
    EXPECT_EQ(Idioma::texto("dB"), "dB (en)");
    const support::World ingles(foundation::Bundle::localized(carpeta.path(), {"en"}));
    EXPECT_EQ(foundation::localizedString("dB", mundo.environment.mainBundle, {}), "dB (es)");
    EXPECT_EQ(foundation::localizedString("dB", ingles.environment.mainBundle, {}), "dB (en)");
}

TEST_F(IdiomaTest, PutsArgumentsInWithTheCurrentLocale) {
    Idioma::fijar("en");
    EXPECT_EQ(Idioma::texto("%lld sonando", {std::int64_t{12345}}), "12.345 sonando");
}

/// Ends the process: with success where its first texts are those of the main bundle.
[[noreturn]] void terminarTrasElPrimerTexto() {
    const support::World mundo(support::World::bundleIn({"en"}));
    const views::BuildScope construccion(mundo.environment);
    const bool elPrincipal = Idioma::paquete().path() == mundo.environment.mainBundle.path() &&
                             Idioma::texto("mudo") == "muted";
    std::exit(elPrincipal ? EXIT_SUCCESS : EXIT_FAILURE);
}

TEST(IdiomaDeathTest, IsTheMainBundleBeforeAnyLanguageIsChosen) {
    // A process that begins anew, since in this one other tests have chosen.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(terminarTrasElPrimerTexto(), testing::ExitedWithCode(EXIT_SUCCESS), "");
}

}  // namespace
}  // namespace nurva
