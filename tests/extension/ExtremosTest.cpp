#include "extension/EscenaDeMuestra.hpp"
#include "platform/canvas/PixelCanvas.hpp"
#include "platform/views/text/TextLayout.hpp"
#include "support/SceneQueries.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace nurva {
namespace {

constexpr std::size_t millon = 1000000;

std::string repetido(std::string_view trozo, std::size_t veces) {
    std::string texto;
    texto.reserve(trozo.size() * veces);
    for (std::size_t i = 0; i < veces; ++i)
        texto += trozo;
    return texto;
}

EstadoParaWidgets estado() {
    EstadoParaWidgets estado = EstadoParaWidgets::porDefecto(support::noon);
    estado.dejaCambiar = true;
    return estado;
}

Muestra diezMilApps() {
    Muestra muestra{.nombre = "diez-mil-apps", .kind = "nurva.volumenPorApp", .estado = estado()};
    for (int i = 0; i < 10000; ++i)
        muestra.estado->apps.push_back({.id = "org.ejemplo.app." + std::to_string(i),
                                        .nombre = "App " + std::to_string(i),
                                        .nivel = 0.5,
                                        .silenciada = false,
                                        .suena = true});
    return muestra;
}

Muestra appDeNombre(const std::string& nombre) {
    Muestra muestra{.nombre = "nombre", .kind = "nurva.volumenPorApp", .estado = estado()};
    muestra.estado->apps = {{"a", nombre, 0.5, false, true}};
    return muestra;
}

Muestra textos(const std::string& texto) {
    Muestra muestra{.nombre = "textos", .kind = "nurva.queEstaPuesto", .estado = estado()};
    muestra.estado->perfil = muestra.estado->razon = muestra.estado->salida = texto;
    return muestra;
}

Muestra millonDeGanancias() {
    Muestra muestra{.nombre = "ganancias", .kind = "nurva.queEstaPuesto", .estado = estado()};
    muestra.estado->curva.clear();
    for (std::size_t i = 0; i < millon; ++i)
        muestra.estado->curva.push_back(static_cast<double>(i * 7919 % 2400) / 100 - 12);
    return muestra;
}

const std::string nombreLarguisimo = repetido("m", millon);
const std::string acentos = "a" + repetido("\u0301", millon / 2);
const std::string enlaces = repetido("👩\u200D", millon / 8);

/// Pixels that are not the card's own colour, as it is in its middle column at the top.
std::size_t pintados(const canvas::Pixels& pixeles) {
    const std::uint32_t fondo = pixeles.row(2)[static_cast<std::size_t>(pixeles.size.width / 2)];
    return pixeles.size.count() -
           static_cast<std::size_t>(std::count(pixeles.argb.begin(), pixeles.argb.end(), fondo));
}

struct Dibujo {
    views::Scene escena;
    std::size_t pintados = 0;
};

Dibujo dibujo(const Muestra& muestra) {
    canvas::FontLibrary fuentes;
    canvas::PixelCanvas lienzo(fuentes);
    Dibujo dibujo{escenaDe(muestra, fuentes)};
    dibujo.pintados = pintados(lienzo.draw(dibujo.escena, escala));
    return dibujo;
}

TEST(Extremos, ShowTheMiddleOfTenThousandApplications) {
    const Dibujo cara = dibujo(diezMilApps());
    // Rows stand 31 points apart; the card's 170 cut six of them, the list's middle in its own.
    EXPECT_EQ(cara.escena.controls.size(), 6u * 13u);
    std::vector<std::string> nombres;
    for (const std::string& texto : support::texts(cara.escena))
        if (texto.starts_with("App "))
            nombres.push_back(texto);
    EXPECT_EQ(nombres, (std::vector<std::string>{"App 4997", "App 4998", "App 4999", "App 5000",
                                                 "App 5001", "App 5002"}));
    EXPECT_GT(cara.pintados, 10000u);
}

TEST(Extremos, CutANameWithoutEndOnItsLine) {
    for (const std::string& nombre : {nombreLarguisimo, acentos, enlaces}) {
        const Dibujo cara = dibujo(appDeNombre(nombre));
        const views::DrawText texto = support::textReading(cara.escena, nombre);
        ASSERT_EQ(texto.lines.size(), 1u);
        EXPECT_LE(texto.frame.width, 70);
        EXPECT_LE(texto.lines.front().size(), views::longestText + 3);
        EXPECT_TRUE(texto.lines.front().ends_with("…"));
        EXPECT_EQ(cara.escena.controls.size(), 13u);
        EXPECT_GT(cara.pintados, 2000u);
    }
}

TEST(Extremos, CutTextsWithoutEndOnTheirLines) {
    for (const std::string& texto : {nombreLarguisimo, acentos, enlaces}) {
        const Dibujo cara = dibujo(textos(texto));
        const auto dibujados = support::all<views::DrawText>(cara.escena);
        ASSERT_EQ(dibujados.size(), 4u);
        for (std::size_t i = 1; i < dibujados.size(); ++i) {
            EXPECT_LE(dibujados[i].lines.size(), 2u);
            EXPECT_LE(dibujados[i].frame.width, 146);
            EXPECT_TRUE(dibujados[i].lines.back().ends_with("…"));
        }
        EXPECT_GT(cara.pintados, 1000u);
    }
}

TEST(Extremos, FillTheCurveWithAMillionGains) {
    const Dibujo cara = dibujo(millonDeGanancias());
    const auto curvas = support::all<views::StrokePath>(cara.escena);
    ASSERT_EQ(curvas.size(), 1u);
    EXPECT_EQ(curvas.front().points.size(), millon);
    // Up and down within every pixel of 146 × 44 points, at four pixels a point.
    EXPECT_GT(cara.pintados, 146u * 44u * 3u);
}

/// The most memory this process has had at once, in bytes.
std::size_t masMemoria() {
    std::ifstream estado("/proc/self/status");
    for (std::string palabra; estado >> palabra;)
        if (palabra == "VmHWM:") {
            std::size_t kibibytes = 0;
            estado >> kibibytes;
            return kibibytes * 1024;
        }
    return std::numeric_limits<std::size_t>::max();
}

/// Ends the process: with success where the face needed no more memory than it may.
[[noreturn]] void dibujarConMedida(const Muestra& muestra) {
    dibujo(muestra);
    constexpr std::size_t mebibyte = 1 << 20;
    const std::size_t memoria = masMemoria();
    std::fprintf(stderr, "%s: %zu MiB\n", muestra.nombre.c_str(), memoria / mebibyte);
    std::exit(memoria < 256 * mebibyte ? EXIT_SUCCESS : EXIT_FAILURE);
}

TEST(ExtremosDeathTest, StayWithin256MiB) {
    if (NURVA_SANITIZED)
        GTEST_SKIP() << "a sanitizer takes memory of its own";
    // A process of its own for each, so that none answers for another's memory.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto conExito = testing::ExitedWithCode(EXIT_SUCCESS);
    EXPECT_EXIT(dibujarConMedida(diezMilApps()), conExito, "");
    EXPECT_EXIT(dibujarConMedida(appDeNombre(nombreLarguisimo)), conExito, "");
    EXPECT_EXIT(dibujarConMedida(appDeNombre(acentos)), conExito, "");
    EXPECT_EXIT(dibujarConMedida(appDeNombre(enlaces)), conExito, "");
    EXPECT_EXIT(dibujarConMedida(textos(acentos)), conExito, "");
    EXPECT_EXIT(dibujarConMedida(millonDeGanancias()), conExito, "");
}

}  // namespace
}  // namespace nurva
