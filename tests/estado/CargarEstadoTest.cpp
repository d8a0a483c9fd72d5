#include "estado/CargarEstado.hpp"
#include "estado/GrupoDeApps.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace nurva {
namespace {

using nlohmann::json;

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

TEST_F(CargarEstado, HasNoRecordWhereAnyFieldIsMissingNullOrOfAnotherType) {
    const json entero = json::parse(foundation::JSONEncoder().encode(registro("Voz")));
    publicar(entero.dump());
    ASSERT_EQ(cargarEstado(mundo.environment), registro("Voz"));
    ASSERT_TRUE(entero.contains("razon"));
    for (const auto& campo : entero.items()) {
        json sin = entero;
        sin.erase(campo.key());
        json nulo = entero;
        nulo[campo.key()] = nullptr;
        json deOtroTipo = entero;
        deOtroTipo[campo.key()] = json::object();
        for (const json& roto : {sin, nulo, deOtroTipo}) {
            publicar(roto.dump());
            EXPECT_EQ(cargarEstado(mundo.environment), std::nullopt) << roto;
        }
    }
}

TEST_F(CargarEstado, HasNoRecordWhereTheAccentIsNoWholeNumber) {
    json roto = json::parse(foundation::JSONEncoder().encode(registro("Voz")));
    for (const json& acento : {json(1.5), json(-1), json(4294967296), json("0x5CE49A")}) {
        roto["acento"] = acento;
        publicar(roto.dump());
        EXPECT_EQ(cargarEstado(mundo.environment), std::nullopt) << acento;
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
