#include "support/TemporaryFolder.hpp"
#include "widgethost/Presses.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

namespace widgethost {
namespace {

/// Presses, and an extension that never answers.
struct Pressed : testing::Test {
    void press() { presses.add(1, {.identifier = "Some"}); }
    void pressAndPerform() {
        press();
        ASSERT_TRUE(presses.isWaiting());
        presses.performFirst(link);
        ASSERT_FALSE(presses.isWaiting());
    }

    support::TemporaryFolder folder;
    ExtensionLink link{{.extension = silentProgram()},
                       {.onPost = [](const std::string&) {}, .onClosed = [] {}}};
    std::vector<Presses::Slot> done;
    Presses presses{[this](Presses::Slot slot) { done.push_back(slot); }};

  private:
    std::filesystem::path silentProgram() const {
        const auto program = folder.write("silent", "#!/bin/sh\nexec sleep 60\n");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
        return program;
    }
};

TEST_F(Pressed, OneIsPerformedAtATime) {
    EXPECT_FALSE(presses.isWaiting());
    pressAndPerform();
    press();
    EXPECT_FALSE(presses.isWaiting()) << "behind the one that is being performed";
    presses.ended(Ending::byItself);
    EXPECT_TRUE(presses.isWaiting());
}

TEST_F(Pressed, WaitOnWhenAnExtensionEndsThatHasNotBeenHandedThem) {
    for (const Ending ending : {Ending::byItself, Ending::hung, Ending::fromOutside}) {
        press();
        presses.ended(ending);
        EXPECT_TRUE(presses.isWaiting());
    }
}

TEST_F(Pressed, OneThatStoppedTheExtensionIsNotPerformedAgain) {
    for (const Ending ending : {Ending::byItself, Ending::hung}) {
        pressAndPerform();
        presses.ended(ending);
        EXPECT_FALSE(presses.isWaiting());
    }
}

TEST_F(Pressed, OneWhoseExtensionWasEndedFromOutsideIsPerformedAgainUnlessItWasAnnounced) {
    pressAndPerform();
    presses.ended(Ending::fromOutside);
    ASSERT_TRUE(presses.isWaiting());
    presses.performFirst(link);
    presses.announced();
    presses.ended(Ending::fromOutside);
    EXPECT_FALSE(presses.isWaiting());
}

TEST_F(Pressed, AreNotAnnouncedBeforeTheyAreHandedOver) {
    press();
    presses.announced();
    EXPECT_TRUE(presses.isWaiting());
}

TEST_F(Pressed, AreNotKeptWithoutEnd) {
    for (int i = 0; i < 100; ++i)
        press();
    int kept = 0;
    for (; presses.isWaiting(); ++kept) {
        presses.performFirst(link);
        presses.ended(Ending::hung);
    }
    EXPECT_EQ(kept, 32);
    EXPECT_TRUE(done.empty()) << "none came to its end";
}

}  // namespace
}  // namespace widgethost
