#include "journeys/ScreenReader.hpp"
#include "journeys/UserSession.hpp"
#include "journeys/Waiting.hpp"
#include "journeys/WidgetHost.hpp"
#include "journeys/Widgets.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace journeys {
namespace {

using nurva::EstadoParaWidgets;

/// A press, and what the host application publishes for it.
struct Press {
    const Widget& widget;
    std::string after;  // the text that stands before the control
    std::string control;
    std::function<bool(const EstadoParaWidgets&)> isDone;
};

/// The level of an application, in per cent.
long level(const EstadoParaWidgets& estado, std::size_t app) {
    return std::lround(estado.apps[app].nivel * 100);
}

const std::vector<Press> everyKind{
    {volume, "Música", "Bajar", [](auto& estado) { return level(estado, 0) == 70; }},
    {volume, "Navegador", "Subir", [](auto& estado) { return level(estado, 1) == 55; }},
    {volume, "Navegador", "30 por ciento", [](auto& estado) { return level(estado, 1) == 30; }},
    {volume, "", "Silenciar Música", [](auto& estado) { return estado.apps[0].silenciada; }},
    {volume, "", "Quitar silencio a Mensajes",
     [](auto& estado) { return !estado.apps[2].silenciada; }},
    {profiles, "", "Cine", [](auto& estado) { return estado.perfil == "Cine"; }},
    {profiles, "", "Ecualizador encendido", [](auto& estado) { return !estado.prendido; }},
    {profiles, "", "Ecualizador apagado", [](auto& estado) { return estado.prendido; }},
};

TEST(Press, OfEveryKindByItsNameChangesTheStateAndTheCard) {
    UserSession session;
    session.startHostApplication("sin-medir");
    WidgetHost host;
    const ScreenReader reader;
    for (const Press& press : everyKind) {
        const auto cardIs = [&](const Picture& picture) {
            return soon(
                [&] { return isSeen(picture, session.screen.pictureOf(press.widget.name)); });
        };
        const Picture before = drawnByCommandLine(press.widget);
        ASSERT_TRUE(cardIs(before)) << press.control;
        const auto control = reader.find(press.widget.name, press.control, press.after);
        ASSERT_TRUE(control) << press.control;
        ASSERT_TRUE(reader.press(*control)) << press.control;
        EXPECT_TRUE(soon([&] { return press.isDone(session.container.state()); })) << press.control;
        const Picture after = drawnByCommandLine(press.widget);
        EXPECT_NE(before, after) << press.control;
        EXPECT_TRUE(cardIs(after)) << press.control;
    }
    EXPECT_EQ(host.quit(), 0);
}

TEST(Press, WithThePointerMeetsWhatIsSeenThere) {
    UserSession session;
    session.startHostApplication("sin-medir");
    const WidgetHost host;
    const ScreenReader reader;
    const auto control = reader.await(volume.name, "100 por ciento", "Navegador");
    ASSERT_TRUE(control);
    const auto window = session.screen.window(volume.name);
    ASSERT_TRUE(window);
    session.screen.click(window->x + control->place.x + control->place.width / 2,
                         window->y + control->place.y + control->place.height / 2);
    EXPECT_TRUE(soon([&] { return level(session.container.state(), 1) == 100; }));
}

}  // namespace
}  // namespace journeys
