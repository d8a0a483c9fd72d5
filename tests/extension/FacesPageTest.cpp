#include "extension/Escaparate.hpp"
#include "extension/GoldenFiles.hpp"
#include "extension/NurvaWidgets.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace nurva {
namespace {

const std::filesystem::path pagina =
    std::filesystem::path(NURVA_TESTS_FOLDER).parent_path() / "docs/faces.md";

std::string fila(const std::vector<std::string>& celdas) {
    std::string texto = "|";
    for (const std::string& celda : celdas)
        texto += " " + celda + " |";
    return texto + "\n";
}

/// The samples of one widget, so many to a row: their captions, and their pictures below.
std::string tabla(const std::vector<Muestra>& muestras, std::size_t columnas) {
    std::string texto;
    for (std::size_t i = 0; i < muestras.size(); i += columnas) {
        std::vector<std::string> leyendas;
        std::vector<std::string> imagenes;
        for (std::size_t j = i; j < std::min(i + columnas, muestras.size()); ++j) {
            const Muestra& muestra = muestras[j];
            leyendas.push_back(i == 0 ? muestra.leyenda : "**" + muestra.leyenda + "**");
            imagenes.push_back("![](../tests/golden/" + muestra.nombre + ".png)");
        }
        texto += fila(leyendas);
        if (i == 0)
            texto += fila(std::vector<std::string>(leyendas.size(), "---"));
        texto += fila(imagenes);
    }
    return texto;
}

std::string titulo(const std::string& kind) {
    static const std::map<std::string, std::string> titulos{
        {"nurva.queEstaPuesto", "What is on"},
        {"nurva.ponerUnPerfil", "The profiles"},
        {"nurva.tuCuarto", "The room"},
        {"nurva.volumenPorApp", "Volume of each application"},
    };
    return titulos.at(kind);
}

std::string paginaDeCaras() {
    std::string texto =
        "# Every face in every state\n\n"
        "Made by `tools/remake-goldens` from the golden files, which are drawn "
        "and compared in every\nrun of the tests.\n";
    for (const auto& widget : NurvaWidgets()) {
        std::vector<Muestra> muestras;
        for (const Muestra& muestra : escaparate())
            if (muestra.kind == widget.kind())
                muestras.push_back(muestra);
        const bool pequeno = widget.families().front() == widgets::WidgetFamily::systemSmall;
        texto += "\n## " + titulo(widget.kind()) + "\n\n" + tabla(muestras, pequeno ? 4 : 2);
    }
    return texto;
}

TEST(GoldenPage, ShowsEveryFaceInEveryState) {
    const std::string texto = paginaDeCaras();
    if (rehacer())
        escrito(pagina, texto);
    EXPECT_EQ(texto, leido(pagina)) << "tools/remake-goldens writes it";
}

TEST(GoldenPage, TellsTheStatesOfAFaceApart) {
    std::set<std::pair<std::string, std::string>> vistas;
    for (const Muestra& muestra : escaparate())
        EXPECT_TRUE(vistas.insert({muestra.kind, muestra.leyenda}).second) << muestra.nombre;
}

TEST(GoldenPage, LeavesNoPictureOut) {
    const std::string texto = leido(pagina);
    for (const auto& archivo : std::filesystem::directory_iterator(
             std::filesystem::path(NURVA_TESTS_FOLDER) / "golden")) {
        if (archivo.path().extension() != ".png")
            continue;
        const std::string nombre = archivo.path().filename().string();
        EXPECT_NE(texto.find("/" + nombre + ")"), std::string::npos) << nombre;
    }
}

}  // namespace
}  // namespace nurva
