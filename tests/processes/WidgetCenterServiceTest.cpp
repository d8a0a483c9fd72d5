#include "platform/foundation/notifications/SessionBus.hpp"
#include "platform/widgets/WidgetCenter.hpp"
#include "processes/Stage.hpp"
#include "widgethost/WidgetCenterService.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace {

using namespace std::chrono_literals;

/// Who has the widget host's name on the session bus; nobody where it is empty.
std::string owner() {
    sd_bus* opened = nullptr;
    if (sd_bus_open_user(&opened) < 0)
        return {};
    const foundation::SessionBus bus(opened);
    sd_bus_message* reply = nullptr;
    if (sd_bus_call_method(opened, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                           "org.freedesktop.DBus", "GetNameOwner", nullptr, &reply, "s",
                           widgets::WidgetCenter::name) < 0)
        return {};
    const foundation::BusMessage answer(reply);
    const char* name = "";
    sd_bus_message_read(reply, "s", &name);
    return name;
}

TEST(WidgetCenterService, KeepsTheConnectionThatANotificationHasOpened) {
    Stage stage;
    stage.bus().end();
    widgethost::WidgetCenterService service([](const std::string&) {});
    stage.bus().start();
    service.post("org.ejemplo.algo");
    ASSERT_TRUE(soon([] { return !owner().empty(); }));
    const std::string first = owner();
    // It would have looked for a bus by now.
    letPass(500ms);
    EXPECT_EQ(owner(), first);
}

TEST(WidgetCenterService, TellsOfNoOtherWidgetHostWhereOnlyTheBusIsGone) {
    Stage stage;
    testing::internal::CaptureStderr();
    const widgethost::WidgetCenterService service([](const std::string&) {});
    stage.bus().end();
    letPass(100ms);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(WidgetCenterService, TellsOfAnotherWidgetHost) {
    const Stage stage;
    const widgethost::WidgetCenterService first([](const std::string&) {});
    ASSERT_TRUE(soon([] { return !owner().empty(); }));
    testing::internal::CaptureStderr();
    const widgethost::WidgetCenterService second([](const std::string&) {});
    std::string told;
    EXPECT_TRUE(soon([&] {
        told += testing::internal::GetCapturedStderr();
        testing::internal::CaptureStderr();
        return told.find("otro escritorio") != std::string::npos;
    }));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "and once only";
}

}  // namespace
