#include "extension/NurvaWidgets.hpp"
#include "platform/canvas/PangoTextMeasurer.hpp"
#include "platform/canvas/PixelCanvas.hpp"
#include "platform/widgets/EntryRenderer.hpp"
#include "processes/Stage.hpp"
#include "support/Program.hpp"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace {

using widgethost::Session;

constexpr const char* whatIsOn = "nurva.queEstaPuesto";
constexpr const char* volume = "nurva.volumenPorApp";
constexpr const char* profiles = "nurva.ponerUnPerfil";
constexpr const char* room = "nurva.tuCuarto";

/// The widget's picture as this process would draw it.
std::vector<std::uint32_t> drawnHere(const char* kind, double scale) {
    const foundation::Environment process = foundation::processEnvironment();
    const foundation::DefaultFileManager files;  // of this test's home
    const foundation::Environment environment{process.clock, files, process.notifications,
                                              process.mainBundle, process.locale};
    const widgets::WidgetBundle bundle = nurva::NurvaWidgets();
    const auto& widget = *widgets::widgetOfKind(bundle, kind);
    canvas::FontLibrary fonts;
    const canvas::PangoTextMeasurer measurer(fonts);
    const widgets::EntryRenderer renderer(environment, measurer);
    const auto family = widget.families().front();
    const auto scene = renderer.render(
        widget.snapshot({.environment = environment, .family = family}),
        {.size = widgets::cardSize(family), .margin = widgets::contentMargin, .scale = scale});
    canvas::PixelCanvas canvas(fonts);
    const auto pixels = canvas.draw(scene, scale).argb;
    return {pixels.begin(), pixels.end()};
}

TEST(Session, ListsTheWidgetsOfTheExtensionInItsOrderAndInTheUsersLanguage) {
    const Stage stage;
    Session session(realExtension());
    int changes = 0;
    session.onGalleryChanged([&] { ++changes; });
    ASSERT_TRUE(soon([&] { return changes == 1; }));
    ASSERT_EQ(session.gallery().size(), 4u);
    EXPECT_EQ(session.gallery()[0].kind, whatIsOn);
    EXPECT_EQ(session.gallery()[0].displayName, "Qué está puesto");
    EXPECT_EQ(session.gallery()[3].kind, volume);
    EXPECT_EQ(session.gallery()[3].description, "Las que suenan, con su nivel y el silenciador.");
    EXPECT_EQ(session.gallery()[3].families, std::vector{widgets::WidgetFamily::systemMedium});
}

/// What the user allows a stack to grow to, in programs that start while it lives.
class StackLimit {
  public:
    explicit StackLimit(rlim_t bytes) {
        ::getrlimit(RLIMIT_STACK, &usual_);
        const rlimit other{.rlim_cur = std::min(bytes, usual_.rlim_max),
                           .rlim_max = usual_.rlim_max};
        ::setrlimit(RLIMIT_STACK, &other);
    }
    StackLimit(const StackLimit&) = delete;
    StackLimit& operator=(const StackLimit&) = delete;
    ~StackLimit() { ::setrlimit(RLIMIT_STACK, &usual_); }

  private:
    rlimit usual_{};
};

TEST(Session, HasRoomForItsThreadsHoweverLargeTheUsersStacksAre) {
    const StackLimit large(rlim_t{1} << 30);
    const Stage stage;
    Session session(realExtension());
    EXPECT_TRUE(soon([&] { return !session.gallery().empty(); }));
}

TEST(Session, ShowsEachWidgetAsItIsDrawnElsewhere) {
    const Stage stage(music());
    Session session(realExtension());
    for (const char* kind : {whatIsOn, profiles, room, volume})
        for (const double scale : {1.0, 1.25, 2.0, 3.0}) {
            const Viewer viewer(session, kind, scale);
            ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
            EXPECT_EQ(viewer.pixels, drawnHere(kind, scale)) << kind << scale;
        }
}

TEST(Session, DrawsNamesInScriptsThatOnlyTheSystemsFontsHave) {
    Stage stage;
    nurva::EstadoParaWidgets estado = music();
    estado.perfil = "ירושלים 🎧 ประเทศ";
    estado.razon = "العربية";
    stage.publish(estado);
    Session session(realExtension());
    const Viewer viewer(session, whatIsOn);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    EXPECT_EQ(viewer.pixels, drawnHere(whatIsOn, 2));
}

TEST(Session, ShowsAPlaceholderThenTheSnapshotInAPreview) {
    Stage stage;
    nurva::EstadoParaWidgets estado = music();
    estado.perfil = "El de ahora";
    stage.publish(estado);
    Session session(realExtension());
    const Viewer viewer(session, whatIsOn, 1, true);
    ASSERT_TRUE(soon([&] { return viewer.faces.size() == 2; }));
    EXPECT_TRUE(hasElement(viewer.faces[0], "Música"));
    EXPECT_TRUE(hasElement(viewer.faces[1], "El de ahora"));
    EXPECT_FALSE(viewer.face->reloadAfter);
}

TEST(Session, DrawsInAnotherScaleWhenAsked) {
    const Stage stage(music());
    Session session(realExtension());
    const Viewer viewer(session, room, 1);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    EXPECT_EQ(viewer.size, (canvas::PixelSize{170, 170}));
    for (const double scale : {3.0, 1.5, 2.0})
        viewer.display->setScale(scale);
    ASSERT_TRUE(soon([&] { return viewer.size == canvas::PixelSize{340, 340}; }));
    EXPECT_EQ(viewer.pixels, drawnHere(room, 2));
}

TEST(Session, LetsCardsComeAndGoAtAnyTime) {
    const Stage stage(music());
    Session session(realExtension());
    for (int turn = 0; turn < 100; ++turn) {
        const Viewer viewer(session, turn % 2 == 0 ? volume : room, 1 + turn % 3);
        if (turn % 5 == 0)
            letPass(std::chrono::milliseconds(turn % 7));
    }
    const Viewer last(session, room);
    EXPECT_TRUE(soon([&] { return last.shown == 1; }));
}

/// How many pictures the extension has in its memory; nothing where it does not let anybody see.
std::optional<std::ptrdiff_t> picturesOfExtension() {
    const std::string maps =
        support::contentsOf("/proc/" + std::to_string(extensionProcess()) + "/maps");
    if (maps.empty())
        return std::nullopt;
    std::ptrdiff_t count = 0;
    for (auto at = maps.find("memfd:"); at != std::string::npos; at = maps.find("memfd:", at + 1))
        ++count;
    return count;
}

TEST(Session, TakesBackThePicturesOfCardsThatAreNoMore) {
    const Stage stage(music());
    Session session(realExtension());
    const Viewer keeper(session, room);
    ASSERT_TRUE(soon([&] { return keeper.shown == 1; }));
    if (!picturesOfExtension())
        GTEST_SKIP() << "only root sees what a confined process has";
    {
        const Viewer other(session, volume);
        ASSERT_TRUE(soon([&] { return other.shown == 1; }));
        EXPECT_EQ(picturesOfExtension(), 2);
        // While another card is asked for, so that this one's new picture is not lent yet.
        session.reload(room);
        other.display->setScale(3);
    }
    EXPECT_TRUE(soon([&] { return picturesOfExtension() == 1; }));
}

TEST(Session, SaysThatThereIsNoSuchWidget) {
    const Stage stage;
    Session session(realExtension());
    const Viewer viewer(session, "nurva.otra");
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    EXPECT_FALSE(viewer.face);
}

}  // namespace
