#include "extension/NurvaWidgets.hpp"
#include "platform/canvas/PangoTextMeasurer.hpp"
#include "platform/canvas/PixelCanvas.hpp"
#include "platform/foundation/NotificationObserver.hpp"
#include "platform/foundation/SystemClock.hpp"
#include "platform/widgets/EntryRenderer.hpp"
#include "platform/widgets/WidgetCenter.hpp"
#include "processes/Stage.hpp"

#include <glib.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <utility>

namespace {

using namespace std::chrono_literals;
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

TEST(Session, ShowsEachWidgetAsItIsDrawnElsewhere) {
    Stage stage;
    stage.publish(music());
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
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    EXPECT_TRUE(viewer.shows("Música"));
    ASSERT_TRUE(soon([&] { return viewer.shown == 2; }));
    EXPECT_TRUE(viewer.shows("El de ahora"));
    EXPECT_FALSE(viewer.face->reloadAfter);
}

TEST(Session, WantsToBeAskedAgainAfterAQuarterOfAnHour) {
    const Stage stage;
    Session session(realExtension());
    const Viewer viewer(session, room);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    const foundation::Date now = foundation::SystemClock().now();
    EXPECT_NEAR(viewer.face->reloadAfter.value().timeIntervalSince(now), 900, 10);
}

TEST(Session, SendsWhatAPressAsksForAndTheOneSignal) {
    Stage stage;
    nurva::EstadoParaWidgets estado = music();
    estado.apps = {{.id = "a", .nombre = "Música", .nivel = 0.4}};
    stage.publish(estado);
    int signals = 0;
    foundation::NotificationObserver observer("org.nurva.Nurva.peticionDeWidget",
                                              [&] { ++signals; });
    Session session(realExtension());
    Viewer viewer(session, volume);
    ASSERT_TRUE(soon([&] { return viewer.shows("Subir"); }));
    viewer.press("Subir");
    ASSERT_TRUE(soon([&] { return observer.process() && signals == 1; }));
    EXPECT_EQ(stage.request(), R"({"volumen":{"app":"a","nivel":0.5}})");
}

TEST(Session, AsksAWidgetAgainOnceItsActionIsDone) {
    Stage stage;
    stage.publish(music());
    Session session(realExtension());
    Viewer viewer(session, whatIsOn);
    Viewer pressed(session, profiles);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1 && pressed.shown == 1; }));
    pressed.display->press({.identifier = "AlternarEncendido"});
    ASSERT_TRUE(soon([&] { return pressed.shown == 2; }));
    letPass(50ms);
    EXPECT_EQ(viewer.shown, 1);
}

TEST(Session, AsksAgainWhenTheSnapshotChanges) {
    Stage stage;
    stage.publish(music());
    Session session(realExtension());
    const Viewer viewer(session, whatIsOn);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    nurva::EstadoParaWidgets other = music();
    other.perfil = "Cine de noche";
    stage.publish(other);
    EXPECT_TRUE(soon([&] { return viewer.shows("Cine de noche"); }));
    std::filesystem::remove(stage.container() / "estado.json");
    EXPECT_TRUE(soon([&] { return !viewer.shows("Cine de noche"); }));
}

TEST(Session, FindsAContainerThatComesAfterIt) {
    Stage stage;
    Session session(realExtension());
    const Viewer viewer(session, whatIsOn);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    nurva::EstadoParaWidgets estado = music();
    estado.perfil = "Recién llegado";
    stage.publish(estado);
    EXPECT_TRUE(soon([&] { return viewer.shows("Recién llegado"); }));
    std::filesystem::remove_all(stage.container());
    ASSERT_TRUE(soon([&] { return !viewer.shows("Recién llegado"); }));
    stage.publish(estado);
    EXPECT_TRUE(soon([&] { return viewer.shows("Recién llegado"); }));
}

TEST(Session, AsksAgainWhenTheHostApplicationSaysSo) {
    Stage stage;
    stage.publish(music());
    Session session(realExtension());
    const Viewer one(session, whatIsOn);
    const Viewer other(session, room);
    ASSERT_TRUE(soon([&] { return one.shown == 1 && other.shown == 1; }));
    EXPECT_TRUE(soon([&] {
        widgets::WidgetCenter::reloadAllTimelines();
        return one.shown > 1 && other.shown > 1;
    }));
    letPass(250ms);
    const int oneBefore = one.shown;
    const int otherBefore = other.shown;
    session.reload(room);
    ASSERT_TRUE(soon([&] { return other.shown == otherBefore + 1; }));
    letPass(50ms);
    EXPECT_EQ(one.shown, oneBefore);
}

TEST(Session, PutsABurstOfReloadsTogetherAndShowsTheLastState) {
    Stage stage;
    stage.publish(music());
    Session session(realExtension());
    const Viewer viewer(session, whatIsOn);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    nurva::EstadoParaWidgets estado = music();
    const auto start = std::chrono::steady_clock::now();
    int asked = 0;
    while (std::chrono::steady_clock::now() < start + 1s) {
        for (int i = 0; i < 100; ++i, ++asked)
            session.reload();
        estado.perfil = "Estado " + std::to_string(asked);
        stage.publish(estado);
        letPass(5ms);
    }
    const int shown = viewer.shown;
    EXPECT_GE(shown, 10);
    EXPECT_LE(shown, 26);  // twenty a second, for a little longer than that
    EXPECT_TRUE(soon([&] { return viewer.shows(estado.perfil); }));
}

TEST(Session, DrawsInAnotherScaleWhenAsked) {
    Stage stage;
    stage.publish(music());
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
    Stage stage;
    stage.publish(music());
    Session session(realExtension());
    for (int turn = 0; turn < 100; ++turn) {
        const Viewer viewer(session, turn % 2 == 0 ? volume : room, 1 + turn % 3);
        if (turn % 5 == 0)
            letPass(std::chrono::milliseconds(turn % 7));
    }
    const Viewer last(session, room);
    EXPECT_TRUE(soon([&] { return last.shown == 1; }));
}

TEST(Session, SaysThatThereIsNoSuchWidget) {
    const Stage stage;
    Session session(realExtension());
    const Viewer viewer(session, "nurva.otra");
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    EXPECT_FALSE(viewer.face);
}

TEST(Session, OutlivesTheBusAndFindsItAgain) {
    Stage stage;
    stage.publish(music());
    Session session(realExtension());
    const Viewer viewer(session, room);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    stage.bus().end();
    letPass(50ms);
    stage.publish(music());
    ASSERT_TRUE(soon([&] { return viewer.shown == 2; }));
    stage.bus().start();
    EXPECT_TRUE(soon([&] {
        widgets::WidgetCenter::reloadAllTimelines();
        return viewer.shown > 2;
    }));
}

/// How often this thread has been on a processor because it wanted to.
long turnsOfThisThread() {
    std::ifstream status("/proc/thread-self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("voluntary_ctxt_switches:"))
            return std::stol(line.substr(line.find(':') + 1));
    return -1;
}

TEST(Session, WakesNobodyAtRest) {
    Stage stage;
    stage.publish(music());
    Session session(realExtension());
    const Viewer viewer(session, room);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    letPass(300ms);
    while (g_main_context_iteration(nullptr, FALSE))
        continue;
    GSource* const end = g_timeout_source_new(300);
    bool isOver = false;
    g_source_set_callback(
        end, [](void* over) -> gboolean { return *static_cast<bool*>(over) = true; }, &isOver,
        nullptr);
    g_source_attach(end, nullptr);
    const long before = turnsOfThisThread();
    int iterations = 0;
    for (; !isOver; ++iterations)
        g_main_context_iteration(nullptr, TRUE);
    g_source_destroy(end);
    g_source_unref(end);
    EXPECT_LE(iterations, 3);
    EXPECT_LE(turnsOfThisThread() - before, 3);
}

}  // namespace
