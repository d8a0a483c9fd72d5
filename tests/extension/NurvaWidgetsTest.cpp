#include "extension/NurvaWidgets.hpp"
#include "platform/widgets/EntryRenderer.hpp"
#include "support/FixedTextMeasurer.hpp"
#include "support/SceneQueries.hpp"
#include "support/World.hpp"

#include <gtest/gtest.h>

namespace nurva {
namespace {

using Families = std::vector<widgets::WidgetFamily>;

TEST(NurvaWidgets, ListsItsFourWidgetsInOrderEachInOneSize) {
    struct Declared {
        std::string kind;
        std::string displayName;
        std::string description;
        Families families;
        bool operator==(const Declared&) const = default;
    };
    const Families small{widgets::WidgetFamily::systemSmall};
    const Families medium{widgets::WidgetFamily::systemMedium};
    std::vector<Declared> declared;
    for (const auto& widget : NurvaWidgets())
        declared.push_back(
            {widget.kind(), widget.displayNameKey(), widget.descriptionKey(), widget.families()});
    EXPECT_EQ(declared, (std::vector<Declared>{
                            {"nurva.queEstaPuesto", "Qué está puesto",
                             "El perfil, su curva y por qué está puesto.", small},
                            {"nurva.ponerUnPerfil", "Poner un perfil",
                             "Cambia de perfil y enciende o apaga, sin abrir Nurva.", medium},
                            {"nurva.tuCuarto", "Tu cuarto",
                             "Cuánto se corrigió, y cuántas salidas siguen sin medir.", small},
                            {"nurva.volumenPorApp", "Volumen por app",
                             "Las que suenan, con su nivel y el silenciador.", medium},
                        }));
}

TEST(NurvaWidgets, HasNoWidgetOfAnotherKind) {
    const auto bundle = NurvaWidgets();
    for (const char* kind : {"", "nurva", "nurva.queestapuesto", "nurva.queEstaPuesto "})
        EXPECT_EQ(widgets::widgetOfKind(bundle, kind), nullptr) << kind;
}

TEST(NurvaWidgets, AnswersWithTheProvidersEntries) {
    const support::World world;
    for (const auto& widget : NurvaWidgets()) {
        const widgets::TimelineProviderContext context{.environment = world.environment};
        EXPECT_TRUE(widget.placeholder(context).hasState());
        EXPECT_FALSE(widget.snapshot(context).hasState());
        const auto timeline = widget.timeline(context);
        ASSERT_EQ(timeline.entries.size(), 1u);
        EXPECT_EQ(timeline.entries.front().date(), support::noon);
        EXPECT_EQ(timeline.policy.earliest, support::noon.addingTimeInterval(900));
    }
}

TEST(NurvaWidgets, DrawsEveryWidgetWithoutAState) {
    const support::World world;
    const support::FixedTextMeasurer measurer;
    const widgets::EntryRenderer renderer(world.environment, measurer);
    for (const auto& widget : NurvaWidgets()) {
        const auto entry = widget.snapshot({.environment = world.environment});
        const auto scene = renderer.render(
            entry, {.size = widgets::cardSize(widget.families().front()), .margin = 12});
        EXPECT_EQ(support::texts(scene),
                  (std::vector<std::string>{"Nurva", "Abre Nurva una vez y este widget se llena."}))
            << widget.kind();
    }
}

}  // namespace
}  // namespace nurva
