#pragma once

#include "support/Program.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>

namespace packaging {

/// NurvaWidgets installed into a folder that knows nothing of the one it was built in, and a user
/// who comes to it for the first time.
struct Installed : testing::Test {
    static void SetUpTestSuite() {
        folder.emplace();
        const support::Outcome installing =
            support::run("cmake --install '" NURVA_BUILD_FOLDER "' --prefix '" + at("") + "'");
        ASSERT_EQ(installing.status, 0) << installing.errors;
    }
    static void TearDownTestSuite() { folder.reset(); }

    /// What is below the prefix under this name. There is a space in the prefix, as users have
    /// them.
    static std::string at(const std::string& name) {
        return (folder->path() / "the widgets" / name).string();
    }

    /// A line of shell in a session of the user's own.
    std::string inSession(const std::string& line) const {
        return "env -u LANGUAGE -u LC_ALL -u DISPLAY -u WAYLAND_DISPLAY -u NURVA_BUNDLE "
               "LANG=es_ES.UTF-8 XDG_DATA_DIRS='" +
               at("share") + "':/usr/share XDG_DATA_HOME='" + home.path().string() + "' " + line;
    }

    static inline std::optional<support::TemporaryFolder> folder;
    const support::TemporaryFolder home;
};

}  // namespace packaging
