#include "contract/UserWithBus.hpp"
#include "enlace/Publicador.hpp"
#include "platform/foundation/SystemClock.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/notifications/SessionBus.hpp"
#include "support/Patience.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace nurva {
namespace {

namespace fs = std::filesystem;

struct PublicadorTest : UserWithBus {
    std::string bytes() const { return foundation::readFile(container() / "estado.json"); }
    EstadoParaWidgets publicado() const {
        return foundation::JSONDecoder().decode<EstadoParaWidgets>(bytes());
    }
};

TEST_F(PublicadorTest, MakesTheContainerForTheUserAlone) {
    EXPECT_EQ(Publicador().contenedor(), container());
    EXPECT_EQ(fs::status(container()).permissions(), fs::perms::owner_all);
    EXPECT_EQ(Publicador().contenedor(), container());
}

TEST_F(PublicadorTest, PublishesToAnotherGroupThatItIsGiven) {
    const Publicador publicador("group.other");
    EXPECT_EQ(publicador.contenedor(), container().parent_path() / "group.other");
    publicador.publicar({});
    EXPECT_TRUE(fs::exists(publicador.contenedor() / "estado.json"));
    EXPECT_FALSE(fs::exists(container()));
    EXPECT_THROW(Publicador("a/b"), std::runtime_error);
}

TEST_F(PublicadorTest, SaysThatThereCannotBeAContainer) {
    home.write("group-containers", "a file");
    EXPECT_THROW(Publicador(), std::runtime_error);
}

TEST_F(PublicadorTest, DatesWhatItPublishes) {
    EstadoParaWidgets estado;
    estado.salida = "Audífonos";
    estado.apps = {{.id = "a", .nombre = "A", .nivel = 0.5, .silenciada = true, .suena = false}};
    const foundation::Date antes = foundation::SystemClock().now();
    Publicador().publicar(estado);
    EXPECT_GE(publicado().cuando, antes);
    EXPECT_LE(publicado().cuando, foundation::SystemClock().now());
    estado.cuando = publicado().cuando;
    EXPECT_EQ(publicado(), estado);
}

TEST_F(PublicadorTest, LeavesTheLastSnapshotWhereTheNextCannotBeWritten) {
    const Publicador publicador;
    publicador.publicar({});
    const std::string ultimo = bytes();
    EstadoParaWidgets malo;
    malo.curva.front() = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THROW(publicador.publicar(malo), std::exception);
    malo.curva.front() = 0;
    malo.perfil = "\xFF";
    EXPECT_THROW(publicador.publicar(malo), std::exception);
    EXPECT_EQ(bytes(), ultimo);
}

TEST_F(PublicadorTest, AsksTheWidgetHostToReload) {
    const auto limite = foundation::Deadline::clock::now() + support::patience;
    const foundation::SessionBus escritorio = foundation::openSessionBus(limite);
    ASSERT_GE(sd_bus_request_name(escritorio.get(), "org.nurva.WidgetCenter", 0), 0);
    bool seLePidio = false;
    const auto oir = [](sd_bus_message* llamada, void* si, sd_bus_error*) {
        *static_cast<bool*>(si) |= sd_bus_message_is_method_call(llamada, "org.nurva.WidgetCenter",
                                                                 "ReloadAllTimelines") > 0;
        return 0;
    };
    sd_bus_add_object(escritorio.get(), nullptr, "/org/nurva/WidgetCenter", oir, &seLePidio);
    Publicador().publicar({});
    while (!seLePidio && foundation::Deadline::clock::now() < limite)
        if (sd_bus_process(escritorio.get(), nullptr) == 0) {
            sd_bus_wait(escritorio.get(), 1'000'000);
            // A bus that is too busy is told later.
            Publicador().publicar({});
        }
    EXPECT_TRUE(seLePidio);
}

TEST_F(PublicadorTest, PublishesWithoutABus) {
    bus.end();
    Publicador().publicar({});
    EXPECT_EQ(publicado().perfil, "Música");
}

}  // namespace
}  // namespace nurva
