#include "linea/Idioma.hpp"
#include "support/TemporaryFolder.hpp"
#include "vistas/CaraDePrueba.hpp"
#include "vistas/SinDatos.hpp"
#include "vistas/WO.hpp"

#include <gtest/gtest.h>

namespace nurva {
namespace {

constexpr const char* nuncaAbierto = "Abre Nurva una vez y este widget se llena.";
constexpr const char* yaCerrado = "Nurva está cerrado. Ábrelo y este widget se pone al día.";

views::Scene escenaEn(const support::World& mundo,
                      const std::optional<std::string>& idioma,
                      SinDatos vista,
                      views::Size tarjeta = chica) {
    const views::BuildScope construccion(mundo.environment);
    Idioma::fijar(idioma);
    return escena(mundo, vista, tarjeta);
}

TEST(SinDatos, AsksToOpenTheHostThatHasNeverRun) {
    const support::World mundo;
    EXPECT_EQ(support::texts(escenaEn(mundo, std::nullopt, {.cerrado = false})),
              (std::vector<std::string>{"Nurva", nuncaAbierto}));
}

TEST(SinDatos, SaysThatTheHostIsClosed) {
    const support::World mundo;
    EXPECT_EQ(support::texts(escenaEn(mundo, std::nullopt, {.cerrado = true})),
              (std::vector<std::string>{"Nurva", yaCerrado}));
}

TEST(SinDatos, HasAQuietHeadingAndAPlainMessage) {
    const support::World mundo;
    const auto textos =
        support::all<views::DrawText>(escenaEn(mundo, std::nullopt, {.cerrado = true}));
    EXPECT_EQ(textos.at(0).font, (views::Font{11, views::FontWeight::semibold}));
    EXPECT_EQ(textos.at(0).color, WO::texto3);
    EXPECT_EQ(textos.at(1).font, (views::Font{12, views::FontWeight::regular}));
    EXPECT_EQ(textos.at(1).color, WO::texto2);
}

TEST(SinDatos, StandsInTheMiddleOfTheCardAsWideAsItsLines) {
    const support::World mundo;
    const auto textos =
        support::all<views::DrawText>(escenaEn(mundo, std::nullopt, {.cerrado = true}));
    const double ancho = textos.at(1).frame.width;
    EXPECT_EQ(textos.at(0).frame, (views::Rect{85 - ancho / 2, 12, 27.5, 14}));
    EXPECT_EQ(textos.at(1).frame, (views::Rect{85 - ancho / 2, 12 + 14 + 6, 138, 45}));
}

TEST(SinDatos, WrapsTheMessageAndNeverCutsIt) {
    const support::World mundo;
    for (double ancho = 72; ancho <= 400; ancho += 1) {
        const auto mensaje = support::textReading(
            escenaEn(mundo, std::nullopt, {.cerrado = true}, {ancho, 60}), yaCerrado);
        std::string junto;
        for (const std::string& linea : mensaje.lines)
            junto += (junto.empty() ? "" : " ") + linea;
        EXPECT_EQ(junto, yaCerrado) << ancho;
        EXPECT_EQ(mensaje.frame.height, 15 * static_cast<double>(mensaje.lines.size())) << ancho;
        EXPECT_LE(mensaje.frame.width, ancho - 24) << ancho;
    }
}

TEST(SinDatos, KeepsItsTextsAtTheTopOfAnyCard) {
    const support::World mundo;
    for (double alto = 170; alto <= 600; alto += 43)
        EXPECT_EQ(support::textReading(
                      escenaEn(mundo, std::nullopt, {.cerrado = false}, {170, alto}), "Nurva")
                      .frame.y,
                  12)
            << alto;
}

TEST(SinDatos, TakesTheMessageFromTheChosenLanguageAndTheHeadingFromTheSystem) {
    const support::TemporaryFolder carpeta;
    carpeta.write("es.lproj/Localizable.strings", "'Nurva' = 'Nurva (es)';");
    carpeta.write(
        "en.lproj/Localizable.strings",
        "'Nurva' = 'Nurva (en)'; 'Abre Nurva una vez y este widget se llena.' = 'Open it.';");
    const support::World mundo(foundation::Bundle::localized(carpeta.path(), {"es"}));
    EXPECT_EQ(support::texts(escenaEn(mundo, "en", {.cerrado = false})),
              (std::vector<std::string>{"Nurva (es)", "Open it."}));
    EXPECT_EQ(support::texts(escenaEn(mundo, "en", {.cerrado = true})),
              (std::vector<std::string>{"Nurva (es)", yaCerrado}));
}

}  // namespace
}  // namespace nurva
