#pragma once

#include "support/PrivateSessionBus.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

/// A user with an empty home and a session bus.
struct UserWithBus : testing::Test {
    UserWithBus() { ::setenv("XDG_DATA_HOME", home.path().c_str(), 1); }
    ~UserWithBus() override { ::unsetenv("XDG_DATA_HOME"); }

    std::filesystem::path container() const {
        return home.path() / "group-containers/group.org.nurva.Nurva";
    }

    support::TemporaryFolder home;
    support::PrivateSessionBus bus;
};
