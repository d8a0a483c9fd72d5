#include "platform/foundation/notifications/SessionBus.hpp"
#include "platform/remote/Connection.hpp"
#include "platform/remote/PictureMemory.hpp"
#include "platform/remote/Protocol.hpp"
#include "platform/remote/Wire.hpp"
#include "processes/Stage.hpp"
#include "widgethost/ExtensionProcess.hpp"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cmath>
#include <limits>

namespace {

using remote::check;

/// A widget host that says what it likes to the real extension.
class Conversation : public testing::Test {
  protected:
    Conversation() { EXPECT_EQ(say("Widgets"), ""); }

    /// The name of the error that the call ends with; empty without one.
    template <class Fill>
    std::string say(const char* member, Fill fill) {
        sd_bus_message* made = nullptr;
        check(sd_bus_message_new_method_call(bus_.get(), &made, nullptr, remote::protocol::path,
                                             remote::protocol::interface, member));
        const foundation::BusMessage call(made);
        fill(*made);
        sd_bus_error error{};
        sd_bus_message* answer = nullptr;
        sd_bus_call(bus_.get(), made, std::chrono::microseconds(support::patience).count(), &error,
                    &answer);
        answer_.reset(answer);
        std::string name = error.name ? error.name : "";
        sd_bus_error_free(&error);
        return name;
    }
    std::string say(const char* member) {
        return say(member, [](sd_bus_message&) {});
    }
    std::string lend(std::uint32_t slot, int memory) {
        return say("Lend", [&](sd_bus_message& call) {
            check(sd_bus_message_append(&call, "uh", slot, memory));
        });
    }
    std::string draw(const std::string& kind, double scale, std::uint32_t slot) {
        return say("Timeline", [&](sd_bus_message& call) {
            remote::write(call, kind);
            check(sd_bus_message_append(&call, "du", scale, slot));
        });
    }
    std::string perform(const intents::ArchivedAction& action) {
        return say("Perform", [&](sd_bus_message& call) { remote::write(call, action); });
    }
    sd_bus_message& answer() { return *answer_; }

  private:
    Stage stage_;
    widgethost::ExtensionProcess process_{NURVA_EXTENSION};
    foundation::SessionBus bus_ = remote::connect(process_.takeSocket(), remote::End::widgetHost);
    foundation::BusMessage answer_;
};

constexpr const char* room = "nurva.tuCuarto";
constexpr std::size_t pixelsAtTwo = 340 * 340;

TEST_F(Conversation, DrawsIntoTheMemoryThatWasLent) {
    const auto memory = remote::PictureMemory::create(pixelsAtTwo);
    ASSERT_EQ(lend(7, memory.descriptor().number()), "");
    ASSERT_EQ(draw(room, 2, 7), "");
    EXPECT_TRUE(remote::readFace(answer()).reloadAfter);
    EXPECT_NE(memory.pixels()[pixelsAtTwo / 2], 0u);
    EXPECT_EQ(
        say("Return", [](sd_bus_message& call) { check(sd_bus_message_append(&call, "u", 7u)); }),
        "");
    EXPECT_EQ(draw(room, 2, 7), SD_BUS_ERROR_INVALID_ARGS);
}

TEST_F(Conversation, RefusesWhatItCannotDrawAndGoesOn) {
    const auto memory = remote::PictureMemory::create(pixelsAtTwo);
    ASSERT_EQ(lend(1, memory.descriptor().number()), "");
    EXPECT_EQ(draw("nurva.otra", 2, 1), SD_BUS_ERROR_INVALID_ARGS);
    EXPECT_EQ(draw(room, 2, 2), SD_BUS_ERROR_INVALID_ARGS);
    EXPECT_EQ(draw(room, 2.1, 1), SD_BUS_ERROR_INVALID_ARGS);
    for (const double scale :
         {0.0, -2.0, 1e300, std::nan(""), std::numeric_limits<double>::infinity()})
        EXPECT_EQ(draw(room, scale, 1), SD_BUS_ERROR_INVALID_ARGS) << scale;
    EXPECT_EQ(draw(room, 2, 1), "");
}

TEST_F(Conversation, TakesNoMemoryThatCouldShrinkUnderIt) {
    const foundation::FileDescriptor unsealed(::memfd_create("test", MFD_ALLOW_SEALING));
    ASSERT_EQ(::ftruncate(unsealed.number(), 4 * pixelsAtTwo), 0);
    EXPECT_NE(lend(1, unsealed.number()), "");
    EXPECT_EQ(draw(room, 2, 1), SD_BUS_ERROR_INVALID_ARGS);
}

TEST_F(Conversation, SaysWhyAnActionCannotBeRun) {
    EXPECT_EQ(perform({.identifier = "Otra"}), SD_BUS_ERROR_INVALID_ARGS);
    EXPECT_EQ(perform({.identifier = "PonerVolumen"}), SD_BUS_ERROR_INVALID_ARGS);
    EXPECT_EQ(perform({"PonerPerfil", {{"id", 3.5}}}), SD_BUS_ERROR_INVALID_ARGS);
    EXPECT_EQ(perform({"PonerPerfil", {{"id", std::string("cine")}}}), "");
}

TEST_F(Conversation, KnowsNoOtherCallsAndNoOtherArguments) {
    EXPECT_EQ(say("Other"), SD_BUS_ERROR_UNKNOWN_METHOD);
    EXPECT_NE(say("Timeline"), "");
    EXPECT_NE(
        say("Lend", [](sd_bus_message& call) { check(sd_bus_message_append(&call, "s", "x")); }),
        "");
    EXPECT_EQ(say("Widgets"), "");
}

}  // namespace
