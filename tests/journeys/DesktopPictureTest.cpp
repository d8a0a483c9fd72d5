#include "journeys/UserSession.hpp"
#include "journeys/Waiting.hpp"
#include "journeys/WidgetHost.hpp"
#include "journeys/Widgets.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "support/PictureComparison.hpp"
#include "support/Program.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace journeys {
namespace {

/// Nothing in it depends on the time.
nurva::EstadoParaWidgets example() {
    return foundation::JSONDecoder().decode<nurva::EstadoParaWidgets>(
        support::contentsOf(NURVA_EXAMPLES_FOLDER "/estado.json"));
}

struct Look {
    int scale;
    canvas::PixelSize screen;
};

class DesktopPicture : public testing::TestWithParam<Look> {};

TEST_P(DesktopPicture, IsAsKept) {
    const auto [scale, size] = GetParam();
    UserSession session(size);
    session.container.publish(example());
    const WidgetHost host("--scale " + std::to_string(scale));
    for (const Widget& widget : widgets)
        ASSERT_TRUE(isSeenAsDrawn(widget, session.screen, scale)) << widget.name;
    const auto kept = std::filesystem::path(NURVA_GOLDEN_FOLDER) /
                      ("desktop-scale-" + std::to_string(scale) + ".png");
    if (std::getenv("NURVA_REMAKE_GOLDENS"))
        session.screen.picture().write(kept);
    const Picture wanted = Picture::read(kept);
    PictureDifference difference;
    const bool isAsKept = soon([&] {
        // Another version of the font rasterizer may move an edge by a shade, not a letter.
        difference = comparePictures(wanted.argb, session.screen.picture().argb, 24);
        return difference.changedShare <= 0.001 && difference.averageChange <= 0.1;
    });
    EXPECT_TRUE(isAsKept) << difference;
}

INSTANTIATE_TEST_SUITE_P(Scales,
                         DesktopPicture,
                         testing::Values(Look{1, {1280, 800}}, Look{2, {1280, 1280}}),
                         [](const auto& look) {
                             return "Scale" + std::to_string(look.param.scale);
                         });

}  // namespace
}  // namespace journeys
