#include "journeys/ScreenReader.hpp"
#include "journeys/UserSession.hpp"
#include "journeys/Waiting.hpp"
#include "journeys/WidgetHost.hpp"
#include "journeys/Widgets.hpp"

#include <gmock/gmock.h>

namespace journeys {
namespace {

using testing::ElementsAreArray;

TEST(FirstStart, PutsAllWidgetsOnTheDesktopAsTheCommandLineDrawsThem) {
    UserSession session;
    session.startHostApplication("muchas");
    WidgetHost host;
    for (const Widget& widget : widgets)
        EXPECT_TRUE(isSeenAsDrawn(widget, session.screen)) << widget.name;
    ASSERT_TRUE(soon([&] { return session.placement().has_value(); }));
    EXPECT_EQ(session.placement()->widgets.size(), widgets.size());
    EXPECT_EQ(host.quit(), 0);
}

TEST(FirstStart, TellsScreenReadersTheTextsAndControlsOfEachCard) {
    for (const char* scene : {"sin-medir", "solo-mirar"}) {
        UserSession session;
        session.startHostApplication(scene);
        const WidgetHost host;
        const ScreenReader reader;
        for (const Widget& widget : widgets) {
            const auto wanted = spokenByCommandLine(widget);
            ASSERT_FALSE(wanted.empty());
            soon([&] { return spoken(reader.window(widget.name)) == wanted; });
            EXPECT_THAT(spoken(reader.window(widget.name)), ElementsAreArray(wanted)) << scene;
        }
    }
}

}  // namespace
}  // namespace journeys
