#include "contract/UserWithBus.hpp"
#include "enlace/Buzon.hpp"
#include "platform/foundation/SessionBusNotificationCenter.hpp"
#include "platform/foundation/WriteFile.hpp"

#include <gtest/gtest.h>
#include <poll.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace nurva {
namespace {

using GrupoDeApps::Peticion;
using Llegadas = std::vector<Peticion>;

struct BuzonTest : UserWithBus {
    BuzonTest() { std::filesystem::create_directories(container()); }

    void escribir(const std::string& texto) const {
        foundation::writeFileAtomically(texto, container() / "peticion.json");
    }
    void avisar() const { centro.post("org.nurva.Nurva.peticionDeWidget"); }
    void pedir(const std::string& texto) const {
        escribir(texto);
        avisar();
    }
    /// Until nothing comes any more. False once the connection is broken.
    bool atenderTodo(Buzon& uno) const {
        while (uno.atender()) {
            pollfd listo{.fd = uno.descriptor(), .events = uno.eventos(), .revents = 0};
            if (::poll(&listo, 1, 100) == 0)
                return true;
        }
        return false;
    }

    foundation::SessionBusNotificationCenter centro;
    Llegadas llegadas;
    Buzon buzon{container(), [this](const Peticion& peticion) { llegadas.push_back(peticion); }};
};

TEST_F(BuzonTest, HandsOverWhatIsAsked) {
    pedir(R"({"volumen":{"app":"a","nivel":0.5}})");
    EXPECT_TRUE(atenderTodo(buzon));
    pedir(R"({"alternarEncendido":{}})");
    EXPECT_TRUE(atenderTodo(buzon));
    pedir(R"({"alternarEncendido":{}})");
    EXPECT_TRUE(atenderTodo(buzon));
    EXPECT_EQ(llegadas, (Llegadas{Peticion::volumen("a", 0.5), Peticion::alternarEncendido(),
                                  Peticion::alternarEncendido()}));
}

TEST_F(BuzonTest, HandsOverNoRequestTwice) {
    pedir(R"({"volumen":{"app":"a","nivel":0.5}})");
    pedir(R"({"alternarEncendido":{}})");
    avisar();
    EXPECT_TRUE(atenderTodo(buzon));
    avisar();
    EXPECT_TRUE(atenderTodo(buzon));
    EXPECT_EQ(llegadas, Llegadas{Peticion::alternarEncendido()});
}

TEST_F(BuzonTest, PassesOverWhatWasAskedBefore) {
    escribir(R"({"alternarEncendido":{}})");
    Buzon tardio(container(), [this](const Peticion& peticion) { llegadas.push_back(peticion); });
    avisar();
    EXPECT_TRUE(atenderTodo(tardio));
    EXPECT_TRUE(llegadas.empty());
}

TEST_F(BuzonTest, PassesOverWhatIsNoRequest) {
    for (const char* malo : {"", "{", "{}", R"({"volumen":{"app":1,"nivel":1}})"}) {
        pedir(malo);
        EXPECT_TRUE(atenderTodo(buzon));
    }
    std::filesystem::remove(container() / "peticion.json");
    avisar();
    std::filesystem::create_directory(container() / "peticion.json");
    avisar();
    EXPECT_TRUE(atenderTodo(buzon));
    EXPECT_TRUE(llegadas.empty());
}

TEST_F(BuzonTest, LetsTheFaultsOfItsOwnerThrough) {
    Buzon fallido(container(), [](const Peticion&) { throw std::runtime_error("a full disk"); });
    pedir(R"({"alternarEncendido":{}})");
    EXPECT_THROW(atenderTodo(fallido), std::runtime_error);
}

TEST_F(BuzonTest, SaysWhenTheBusIsGone) {
    bus.end();
    EXPECT_FALSE(atenderTodo(buzon));
    EXPECT_THROW(Buzon(container(), [](const Peticion&) {}), std::system_error);
}

}  // namespace
}  // namespace nurva
