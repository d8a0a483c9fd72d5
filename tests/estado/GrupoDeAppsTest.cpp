#include "estado/GrupoDeApps.hpp"
#include "support/TemporaryFolder.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

#include <array>
#include <barrier>
#include <thread>

namespace nurva {
namespace {

foundation::Bundle paqueteCon(const support::TemporaryFolder& carpeta, const std::string& entrada) {
    carpeta.write("Info.plist",
                  R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0"><dict>)" + entrada +
                      "</dict></plist>");
    return *foundation::Bundle::open(carpeta.path());
}

TEST(GrupoDeApps, TakesTheGroupThatTheInfoDictionaryNames) {
    const support::TemporaryFolder carpeta;
    const auto paquete = paqueteCon(carpeta, "<key>GrupoDeApps</key><string>abc</string>");
    EXPECT_EQ(GrupoDeApps::identificador(paquete), "abc");
}

TEST(GrupoDeApps, TakesAnEmptyNameAsItStands) {
    const support::TemporaryFolder carpeta;
    const auto paquete = paqueteCon(carpeta, "<key>GrupoDeApps</key><string></string>");
    EXPECT_EQ(GrupoDeApps::identificador(paquete), "");
}

TEST(GrupoDeApps, FallsBackToTheHostWhereTheValueIsNoString) {
    for (const char* valor : {"<integer>7</integer>", "<true/>", "<array/>", "<dict/>"}) {
        const support::TemporaryFolder carpeta;
        const auto paquete = paqueteCon(carpeta, std::string("<key>GrupoDeApps</key>") + valor);
        EXPECT_EQ(GrupoDeApps::identificador(paquete), "group.org.nurva.Nurva") << valor;
    }
}

TEST(GrupoDeApps, FallsBackToTheHostWithoutAKeyOrAnInfoDictionary) {
    const support::TemporaryFolder conOtraClave;
    EXPECT_EQ(
        GrupoDeApps::identificador(paqueteCon(conOtraClave, "<key>a</key><string>b</string>")),
        "group.org.nurva.Nurva");
    const support::TemporaryFolder vacia;
    EXPECT_EQ(GrupoDeApps::identificador(*foundation::Bundle::open(vacia.path())),
              "group.org.nurva.Nurva");
}

TEST(GrupoDeApps, IsTheSameStringForEightThreadsAtOnce) {
    const support::World mundo;
    constexpr std::size_t hilos = 8;
    std::barrier salida(hilos);
    std::array<const std::string*, hilos> vistos{};
    {
        std::vector<std::jthread> todos;
        for (std::size_t i = 0; i < hilos; ++i)
            todos.emplace_back([&, i] {
                salida.arrive_and_wait();
                vistos[i] = &GrupoDeApps::id(mundo.environment);
            });
    }
    for (const std::string* visto : vistos)
        EXPECT_EQ(visto, vistos.front());
    EXPECT_EQ(*vistos.front(), "group.org.nurva.Nurva");
}

TEST(GrupoDeApps, KeepsWhatItFoundFirst) {
    const support::World primero;
    const std::string antes = GrupoDeApps::id(primero.environment);
    const support::TemporaryFolder carpeta;
    const support::World otro(paqueteCon(carpeta, "<key>GrupoDeApps</key><string>abc</string>"));
    EXPECT_EQ(GrupoDeApps::id(otro.environment), antes);
}

}  // namespace
}  // namespace nurva
