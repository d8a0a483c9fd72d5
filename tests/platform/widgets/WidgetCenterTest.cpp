#include "platform/foundation/notifications/SessionBus.hpp"
#include "platform/widgets/WidgetCenter.hpp"
#include "support/Patience.hpp"
#include "support/PrivateSessionBus.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <future>
#include <stdexcept>
#include <stop_token>
#include <string>
#include <thread>

namespace widgets {
namespace {

using support::patience;
using WidgetCenter::Answer;

/// A widget host on the bus, which takes the first call and answers it with what it is told to.
class WidgetHost {
  public:
    explicit WidgetHost(bool refuses = false) : refuses_(refuses) {
        bus_ = foundation::openSessionBus(foundation::Deadline::clock::now() + patience);
        sd_bus_add_object(bus_.get(), nullptr, "/org/nurva/WidgetCenter", called, this);
        if (sd_bus_request_name(bus_.get(), "org.nurva.WidgetCenter", 0) < 0)
            throw std::runtime_error("no name on the bus");
        thread_ = std::jthread([this](const std::stop_token& end) {
            constexpr std::uint64_t moment = 20'000;
            while (!end.stop_requested())
                if (sd_bus_process(bus_.get(), nullptr) == 0)
                    sd_bus_wait(bus_.get(), moment);
        });
    }

    /// The call that came: its member, and its argument if it has one.
    std::string call() {
        auto coming = call_.get_future();
        return coming.wait_for(patience) == std::future_status::ready ? coming.get() : "none";
    }

  private:
    static int called(sd_bus_message* message, void* self, sd_bus_error* error) {
        auto& host = *static_cast<WidgetHost*>(self);
        std::string call = sd_bus_message_get_member(message);
        const char* kind = nullptr;
        if (sd_bus_message_read(message, "s", &kind) > 0)
            call += std::string(" ") + kind;
        host.call_.set_value(call);
        if (host.refuses_)
            return sd_bus_error_set(error, SD_BUS_ERROR_FAILED, "not now");
        return sd_bus_reply_method_return(message, nullptr);
    }

    bool refuses_;
    foundation::SessionBus bus_;
    std::promise<std::string> call_;
    std::jthread thread_;
};

struct Center : testing::Test {
    support::PrivateSessionBus bus;
};

TEST_F(Center, AsksForOneKindAndIsAnswered) {
    WidgetHost host;
    EXPECT_EQ(WidgetCenter::reloadTimelines("nurva.tuCuarto", patience), Answer::done);
    EXPECT_EQ(host.call(), "ReloadTimelines nurva.tuCuarto");
}

TEST_F(Center, AsksForAllKindsAndIsAnswered) {
    WidgetHost host;
    EXPECT_EQ(WidgetCenter::reloadTimelines("", patience), Answer::done);
    EXPECT_EQ(host.call(), "ReloadAllTimelines");
}

TEST_F(Center, AsksForAllKindsWithoutWaiting) {
    WidgetHost host;
    EXPECT_TRUE(WidgetCenter::reloadAllTimelines(patience));
    EXPECT_EQ(host.call(), "ReloadAllTimelines");
}

TEST_F(Center, SaysThatNoWidgetHostDoesIt) {
    EXPECT_EQ(WidgetCenter::reloadTimelines("a", patience), Answer::noHost);
    WidgetHost host(true);
    EXPECT_EQ(WidgetCenter::reloadTimelines("a", patience), Answer::noHost);
    EXPECT_EQ(host.call(), "ReloadTimelines a");
}

TEST_F(Center, SaysThatThereIsNoBus) {
    bus.end();
    EXPECT_EQ(WidgetCenter::reloadTimelines("a", patience), Answer::noBus);
    EXPECT_FALSE(WidgetCenter::reloadAllTimelines(patience));
}

}  // namespace
}  // namespace widgets
