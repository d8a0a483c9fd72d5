#include "platform/foundation/bundle/InstalledProgram.hpp"
#include "support/Program.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace foundation {
namespace {

namespace fs = std::filesystem;

/// An installation, in whose folder of programs is one that says where another one is.
struct Installation : testing::Test {
    Installation() {
        fs::create_directory(prefix.path() / "bin");
        fs::copy(NURVA_PROGRAM_FINDER, prefix.path() / "bin" / "finder");
    }
    void install(const fs::path& name) const {
        fs::permissions(prefix.write(name, "#!/bin/sh\n"), fs::perms::owner_all);
    }
    /// Where the program is within the installation.
    std::string place(const std::string& name) const {
        const std::string finder = (prefix.path() / "bin" / "finder").string();
        const std::string found = support::run("'" + finder + "' '" + name + "'").output;
        return found == "none" ? found : fs::path(found).lexically_relative(prefix.path()).string();
    }

    support::TemporaryFolder prefix;
};

TEST_F(Installation, HasProgramsBesideOneAnother) {
    install("bin/other");
    EXPECT_EQ(place("other"), "bin/other");
}

TEST_F(Installation, HasThoseThatUsersDoNotCallInAPlaceOfTheirOwn) {
    install("libexec/nurva-widgets/other");
    EXPECT_EQ(place("other"), "libexec/nurva-widgets/other");
    install("bin/other");
    EXPECT_EQ(place("other"), "bin/other") << "the closest one";
}

TEST_F(Installation, HasNoneThatIsMissingOrCannotBeRun) {
    EXPECT_EQ(place("other"), "none");
    prefix.write("bin/other", "text");
    EXPECT_EQ(place("other"), "none");
    install("libexec/other");
    EXPECT_EQ(place("other"), "none");
}

}  // namespace
}  // namespace foundation
