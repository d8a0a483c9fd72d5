#include "estado/CargarEstado.hpp"
#include "estado/GrupoDeApps.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

namespace nurva {
namespace {

const std::filesystem::path contenedor = "/contenedor";

EstadoParaWidgets registro(std::string perfil) {
    EstadoParaWidgets estado = EstadoParaWidgets::porDefecto(support::noon);
    estado.perfil = std::move(perfil);
    return estado;
}

struct CargarEstado : testing::Test {
    CargarEstado() { mundo.files.containers["group.org.nurva.Nurva"] = contenedor; }

    void publicar(const std::string& bytes) {
        mundo.files.files[contenedor / "estado.json"] = bytes;
    }
    void publicar(const EstadoParaWidgets& estado) {
        publicar(foundation::JSONEncoder().encode(estado));
    }

    support::World mundo;
};

TEST_F(CargarEstado, ReadsTheSnapshotOfTheContainer) {
    publicar(registro("Voz"));
    EXPECT_EQ(cargarEstado(mundo.environment), registro("Voz"));
}

TEST_F(CargarEstado, AsksForTheContainerOfTheGroup) {
    cargarEstado(mundo.environment);
    EXPECT_EQ(mundo.files.askedGroups(), std::vector<std::string>{"group.org.nurva.Nurva"});
}

TEST_F(CargarEstado, HasNoRecordWithoutAContainer) {
    publicar(registro("Voz"));
    mundo.files.containers.clear();
    EXPECT_EQ(cargarEstado(mundo.environment), std::nullopt);
    EXPECT_EQ(mundo.files.reads(), 0u);
}

TEST_F(CargarEstado, HasNoRecordWithoutAFile) {
    EXPECT_EQ(cargarEstado(mundo.environment), std::nullopt);
    EXPECT_EQ(mundo.files.reads(), 1u);
}

TEST_F(CargarEstado, HasNoRecordInAnEmptyFile) {
    publicar("");
    EXPECT_EQ(cargarEstado(mundo.environment), std::nullopt);
}

TEST_F(CargarEstado, HasNoRecordInHalfAFileWhateverItsLength) {
    const std::string entero = foundation::JSONEncoder().encode(registro("Voz"));
    for (std::size_t largo = 0; largo < entero.size(); ++largo) {
        publicar(entero.substr(0, largo));
        EXPECT_EQ(cargarEstado(mundo.environment), std::nullopt) << largo;
    }
}

TEST_F(CargarEstado, ReadsTheFileAnewOnEveryCall) {
    publicar(registro("Voz"));
    const auto primero = cargarEstado(mundo.environment);
    publicar(registro("Cine"));
    const auto segundo = cargarEstado(mundo.environment);
    EXPECT_EQ(primero, registro("Voz"));
    EXPECT_EQ(segundo, registro("Cine"));
    EXPECT_EQ(mundo.files.reads(), 2u);
}

}  // namespace
}  // namespace nurva
