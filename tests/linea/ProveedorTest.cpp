#include "linea/Proveedor.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

namespace nurva {
namespace {

using foundation::Date;

struct ProveedorTest : testing::Test {
    ProveedorTest() {
        mundo.files.containers["group.org.nurva.Nurva"] = "/contenedor";
        estado.perfil = "Voz";
        estado.cuando = Date{1};
    }
    void publicar() {
        mundo.files.files["/contenedor/estado.json"] = foundation::JSONEncoder().encode(estado);
    }
    void ponerRelojEn(std::initializer_list<Date> instantes) {
        reloj = std::make_unique<support::ManualClock>(instantes);
        entorno = std::make_unique<foundation::Environment>(foundation::Environment{
            *reloj, mundo.files, mundo.notifications, mundo.environment.mainBundle, {}});
    }
    /// The one answer to the question for a timeline.
    static widgets::Timeline<Entrada> linea(const Proveedor::Context& contexto) {
        std::vector<widgets::Timeline<Entrada>> respuestas;
        Proveedor{}.getTimeline(contexto, [&](auto respuesta) { respuestas.push_back(respuesta); });
        EXPECT_EQ(respuestas.size(), 1u);
        return respuestas.at(0);
    }
    widgets::Timeline<Entrada> linea() const { return linea({.environment = *entorno}); }
    /// The one answer to the question for a snapshot.
    static Entrada instantanea(const Proveedor::Context& contexto) {
        std::vector<Entrada> respuestas;
        Proveedor{}.getSnapshot(contexto, [&](auto respuesta) { respuestas.push_back(respuesta); });
        EXPECT_EQ(respuestas.size(), 1u);
        return respuestas.at(0);
    }
    Entrada instantanea() const { return instantanea({.environment = *entorno}); }

    support::World mundo;
    EstadoParaWidgets estado = EstadoParaWidgets::porDefecto(support::noon);
    std::unique_ptr<support::ManualClock> reloj;
    std::unique_ptr<foundation::Environment> entorno;
};

TEST_F(ProveedorTest, DatesTheEntryBeforeReadingAndTheReloadAfterIt) {
    publicar();
    ponerRelojEn({Date{100}, Date{107}});
    const auto respuesta = linea();
    EXPECT_EQ(respuesta.entries, std::vector{(Entrada{.date = Date{100}, .estado = estado})});
    EXPECT_EQ(respuesta.policy, widgets::TimelineReloadPolicy::after(Date{107 + 900}));
    EXPECT_EQ(reloj->reads(), 2u);
    EXPECT_EQ(mundo.files.reads(), 1u);
}

TEST_F(ProveedorTest, AsksAgainOnTheSameScheduleWithoutASnapshot) {
    ponerRelojEn({Date{100}, Date{101}});
    const auto respuesta = linea();
    EXPECT_EQ(respuesta.entries, std::vector{(Entrada{.date = Date{100}, .estado = std::nullopt})});
    EXPECT_EQ(respuesta.policy, widgets::TimelineReloadPolicy::after(Date{1001}));
}

TEST_F(ProveedorTest, LooksAtNothingInTheSnapshot) {
    for (const double cuando : {-1e300, 0.0, 1e300}) {
        estado.cuando = Date{cuando};
        publicar();
        ponerRelojEn({Date{100}, Date{100}});
        const auto respuesta = linea();
        EXPECT_EQ(respuesta.entries.at(0).date, Date{100});
        EXPECT_EQ(respuesta.policy.earliest, Date{1000});
    }
}

TEST_F(ProveedorTest, GivesTheSnapshotAsItIsNow) {
    publicar();
    ponerRelojEn({Date{100}});
    EXPECT_EQ(instantanea(), (Entrada{.date = Date{100}, .estado = estado}));
    EXPECT_EQ(reloj->reads(), 1u);
    mundo.files.files.clear();
    EXPECT_EQ(instantanea(), (Entrada{.date = Date{100}, .estado = std::nullopt}));
    EXPECT_EQ(mundo.files.reads(), 2u);
}

TEST_F(ProveedorTest, ShowsTheDefaultRecordAsPlaceholderWithoutReading) {
    publicar();
    ponerRelojEn({Date{100}});
    const Entrada provisional = Proveedor{}.placeholder({.environment = *entorno});
    EXPECT_EQ(provisional,
              (Entrada{.date = Date{100}, .estado = EstadoParaWidgets::porDefecto(Date{100})}));
    EXPECT_EQ(mundo.files.reads(), 0u);
    EXPECT_TRUE(mundo.files.askedGroups().empty());
}

TEST_F(ProveedorTest, AnswersAlikeForEveryFamilyAndPreview) {
    publicar();
    ponerRelojEn({Date{100}});
    const Entrada ahora{.date = Date{100}, .estado = estado};
    const Entrada provisional{.date = Date{100},
                              .estado = EstadoParaWidgets::porDefecto(Date{100})};
    for (const auto family :
         {widgets::WidgetFamily::systemSmall, widgets::WidgetFamily::systemMedium})
        for (const bool isPreview : {false, true}) {
            const Proveedor::Context contexto{
                .environment = *entorno, .family = family, .isPreview = isPreview};
            EXPECT_EQ(instantanea(contexto), ahora);
            const auto respuesta = linea(contexto);
            EXPECT_EQ(respuesta.entries, std::vector{ahora});
            EXPECT_EQ(respuesta.policy, widgets::TimelineReloadPolicy::after(Date{1000}));
            EXPECT_EQ(Proveedor{}.placeholder(contexto), provisional);
        }
}

}  // namespace
}  // namespace nurva
