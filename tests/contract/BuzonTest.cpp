#include "contract/UserWithBus.hpp"
#include "enlace/Buzon.hpp"
#include "platform/foundation/files/WriteFile.hpp"
#include "platform/foundation/notifications/SessionBusNotificationCenter.hpp"
#include "support/Patience.hpp"

#include <gtest/gtest.h>
#include <poll.h>

#include <chrono>
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
    /// Attends to what comes next. False once the connection is broken.
    static bool atender(Buzon& uno) {
        pollfd listo{.fd = uno.descriptor(), .events = uno.eventos(), .revents = 0};
        constexpr std::chrono::milliseconds paciencia = support::patience;
        return ::poll(&listo, 1, static_cast<int>(paciencia.count())) == 1 && uno.atender();
    }
    /// Says that something waits, and lets the mailbox hear of it.
    bool avisarYAtender() {
        avisar();
        return atender(buzon);
    }
    bool pedir(const std::string& texto) {
        escribir(texto);
        return avisarYAtender();
    }

    foundation::SessionBusNotificationCenter centro{support::patience};
    Llegadas llegadas;
    Buzon buzon{container(), [this](const Peticion& peticion) { llegadas.push_back(peticion); }};
    // From here on nothing comes but notifications.
    const bool estaListo = buzon.atender();
};

TEST_F(BuzonTest, HandsOverWhatIsAsked) {
    EXPECT_TRUE(pedir(R"({"volumen":{"app":"a","nivel":0.5}})"));
    EXPECT_TRUE(pedir(R"({"alternarEncendido":{}})"));
    EXPECT_TRUE(pedir(R"({"alternarEncendido":{}})"));
    EXPECT_EQ(llegadas, (Llegadas{Peticion::volumen("a", 0.5), Peticion::alternarEncendido(),
                                  Peticion::alternarEncendido()}));
}

TEST_F(BuzonTest, HandsOverNoRequestTwice) {
    escribir(R"({"volumen":{"app":"a","nivel":0.5}})");
    escribir(R"({"alternarEncendido":{}})");
    for (int aviso = 0; aviso < 3; ++aviso)
        EXPECT_TRUE(avisarYAtender());
    EXPECT_EQ(llegadas, Llegadas{Peticion::alternarEncendido()});
}

TEST_F(BuzonTest, PassesOverWhatWasAskedBefore) {
    escribir(R"({"alternarEncendido":{}})");
    Llegadas tarde;
    Buzon tardio(container(), [&](const Peticion& peticion) { tarde.push_back(peticion); });
    EXPECT_TRUE(tardio.atender());
    avisar();
    EXPECT_TRUE(atender(tardio));
    EXPECT_TRUE(tarde.empty());
}

TEST_F(BuzonTest, PassesOverWhatIsNoRequest) {
    for (const char* malo : {"", "{", "{}", R"({"volumen":{"app":1,"nivel":1}})"}) {
        EXPECT_TRUE(pedir(malo));
    }
    std::filesystem::remove(container() / "peticion.json");
    EXPECT_TRUE(avisarYAtender());
    std::filesystem::create_directory(container() / "peticion.json");
    EXPECT_TRUE(avisarYAtender());
    EXPECT_TRUE(llegadas.empty());
    std::filesystem::remove(container() / "peticion.json");
    EXPECT_TRUE(pedir(R"({"alternarEncendido":{}})"));
    EXPECT_EQ(llegadas, Llegadas{Peticion::alternarEncendido()});
}

TEST_F(BuzonTest, SaysWhyWhereItIsAsked) {
    std::vector<std::string> motivos;
    Buzon curioso(
        container(), [](const Peticion&) { ADD_FAILURE(); },
        [&](const std::string& porQue) { motivos.push_back(porQue); });
    EXPECT_TRUE(curioso.atender());
    escribir("{}");
    for (int aviso = 0; aviso < 2; ++aviso) {
        avisar();
        EXPECT_TRUE(atender(curioso));
    }
    EXPECT_EQ(motivos.size(), 1u) << "once for each file";
    EXPECT_FALSE(motivos.front().empty());
}

TEST_F(BuzonTest, LetsTheFaultsOfItsOwnerThrough) {
    Buzon fallido(container(), [](const Peticion&) { throw std::runtime_error("a full disk"); });
    EXPECT_TRUE(fallido.atender());
    escribir(R"({"alternarEncendido":{}})");
    avisar();
    EXPECT_THROW(atender(fallido), std::runtime_error);
}

TEST_F(BuzonTest, SaysWhenTheBusIsGone) {
    bus.end();
    EXPECT_FALSE(atender(buzon));
    EXPECT_THROW(Buzon(container(), [](const Peticion&) {}), std::system_error);
}

}  // namespace
}  // namespace nurva
