#include "platform/foundation/notifications/NotificationObserver.hpp"
#include "platform/foundation/notifications/SessionBusNotificationCenter.hpp"
#include "processes/Stage.hpp"
#include "support/Program.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

using widgethost::Session;

constexpr const char* profiles = "nurva.ponerUnPerfil";
constexpr const char* volume = "nurva.volumenPorApp";
constexpr const char* request = "org.nurva.Nurva.peticionDeWidget";

TEST(Signals, OneTellsOfWhatAPressAsksFor) {
    Stage stage;
    nurva::EstadoParaWidgets estado = music();
    estado.apps = {{.id = "a", .nombre = "Música", .nivel = 0.4}};
    stage.publish(estado);
    int signals = 0;
    foundation::NotificationObserver observer(request, [&] { ++signals; });
    Session session(realExtension());
    Viewer viewer(session, volume);
    ASSERT_TRUE(soon([&] { return viewer.shows("Subir"); }));
    viewer.press("Subir");
    ASSERT_TRUE(soon([&] { return observer.process() && signals == 1; }));
    EXPECT_EQ(stage.request(), R"({"volumen":{"app":"a","nivel":0.5}})");
}

TEST(Signals, ThatTheBundleDoesNotNameAreNotSent) {
    const Stage stage(music());
    const support::TemporaryFolder folder;
    const auto bundle = folder.path() / "NurvaWidgets.appex";
    std::filesystem::copy(NURVA_RESOURCES_FOLDER "/NurvaWidgets.appex", bundle,
                          std::filesystem::copy_options::recursive);
    std::string list = support::contentsOf(bundle / "Entitlements.plist");
    list.replace(list.find(request), std::string(request).size(), "org.nurva.Nurva.otra");
    folder.write("NurvaWidgets.appex/Entitlements.plist", list);
    ::setenv("NURVA_BUNDLE", bundle.c_str(), 1);
    int signals = 0;
    foundation::NotificationObserver observer(request, [&] { ++signals; });
    Session session(realExtension());
    Viewer viewer(session, profiles);
    ASSERT_TRUE(soon([&] { return viewer.shown == 1; }));
    viewer.display->press({.identifier = "AlternarEncendido"});
    ASSERT_TRUE(soon([&] { return viewer.shown == 2; }));
    EXPECT_EQ(stage.request(), R"({"alternarEncendido":{}})");
    // On its way to the bus the answer is behind the signal, and so is one that is sent after it.
    ASSERT_TRUE(isReloadedFromOutside(""));
    foundation::SessionBusNotificationCenter(support::patience).post(request);
    ASSERT_TRUE(soon([&] { return observer.process() && signals > 0; }));
    EXPECT_EQ(signals, 1);
}

}  // namespace
