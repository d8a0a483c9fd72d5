#include "extension/Escaparate.hpp"
#include "extension/EscenaDeMuestra.hpp"
#include "extension/GoldenFiles.hpp"
#include "platform/canvas/PNG.hpp"
#include "platform/canvas/PixelCanvas.hpp"
#include "platform/views/scene/SceneJSON.hpp"
#include "support/PictureComparison.hpp"

#include <cairo.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <vector>

namespace nurva {
namespace {

std::filesystem::path archivo(const Muestra& muestra, const char* tipo) {
    return std::filesystem::path(NURVA_TESTS_FOLDER) / "golden" / (muestra.nombre + tipo);
}

/// The scene as text, one element a line.
std::string enLineas(const views::Scene& escena) {
    foundation::Encoder encoder;
    encoder.encodeObject([&] { views::encodeMembers(encoder, escena); });
    std::string texto = encoder.text();
    for (const char* comienzo :
         {"{\"op\":", "{\"frame\":", "{\"role\":", "\"controls\":[", "\"accessibility\":["})
        for (std::size_t i = texto.find(comienzo); i != std::string::npos;
             i = texto.find(comienzo, i + 2))
            texto.insert(i, "\n");
    return texto + "\n";
}

struct Superficie {
    void operator()(cairo_surface_t* superficie) const { cairo_surface_destroy(superficie); }
};

/// The pixels of a kept picture; none where there is no picture of this size.
std::vector<std::uint32_t> guardados(const std::filesystem::path& ruta, canvas::PixelSize tamano) {
    const std::unique_ptr<cairo_surface_t, Superficie> imagen(
        cairo_image_surface_create_from_png(ruta.c_str()));
    if (cairo_image_surface_get_width(imagen.get()) != tamano.width ||
        cairo_image_surface_get_height(imagen.get()) != tamano.height)
        return {};
    const auto* datos =
        reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(imagen.get()));
    return {datos, datos + tamano.count()};
}

struct Golden : testing::TestWithParam<Muestra> {
    static canvas::FontLibrary& fuentes() {
        static canvas::FontLibrary unicas;
        return unicas;
    }
};

TEST_P(Golden, SceneIsAsKept) {
    const std::string texto = enLineas(escenaDe(GetParam(), fuentes()));
    const auto ruta = archivo(GetParam(), ".txt");
    if (rehacer())
        escrito(ruta, texto);
    EXPECT_EQ(texto, leido(ruta));
}

TEST_P(Golden, PictureIsAsKept) {
    canvas::PixelCanvas lienzo(fuentes());
    const canvas::Pixels pixeles = lienzo.draw(escenaDe(GetParam(), fuentes()), escala);
    const auto ruta = archivo(GetParam(), ".png");
    // What looks the same is left alone, whatever the encoder makes of it today.
    if (rehacer() && !std::ranges::equal(guardados(ruta, pixeles.size), pixeles.argb))
        escrito(ruta, canvas::encodePNG(pixeles));
    const std::vector<std::uint32_t> guardada = guardados(ruta, pixeles.size);
    ASSERT_EQ(guardada.size(), pixeles.size.count()) << ruta;
    // Another version of the font rasterizer may move an edge by a shade, not a letter by a pixel.
    const auto diferencia = comparePictures(guardada, pixeles.argb, 24);
    EXPECT_LE(diferencia.changedShare, 0.001) << diferencia;
    EXPECT_LE(diferencia.averageChange, 0.1) << diferencia;
}

INSTANTIATE_TEST_SUITE_P(Escaparate, Golden, testing::ValuesIn(escaparate()), [](const auto& caso) {
    std::string nombre = caso.param.nombre;
    std::replace(nombre.begin(), nombre.end(), '-', '_');
    return nombre;
});

}  // namespace
}  // namespace nurva
