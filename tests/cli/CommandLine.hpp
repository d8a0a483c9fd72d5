#pragma once

#include "support/Program.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>

using nlohmann::json;
using support::Outcome;

/// The snapshot of the example as JSON, written at this moment.
inline constexpr double written = 804686400;
inline const std::string example = NURVA_EXAMPLES_FOLDER "/estado.json";

struct CommandLine : testing::Test {
    CommandLine() { std::filesystem::create_directories(container()); }

    std::filesystem::path container() const {
        return home.path() / "group-containers/group.org.nurva.Nurva";
    }
    std::filesystem::path publish(const json& snapshot) const {
        return home.write("group-containers/group.org.nurva.Nurva/estado.json", snapshot.dump());
    }
    /// Runs `nurva` as a user with this home and these languages does, with further variables
    /// such as "A=1 B=2".
    Outcome nurva(const std::string& arguments,
                  const std::string& language = "es_ES.UTF-8",
                  const std::string& variables = "") const {
        return support::run("env -u LANGUAGE -u LC_ALL -u LC_MESSAGES -u LC_NUMERIC LANG=" +
                            language + " XDG_DATA_HOME='" + home.path().string() + "' " +
                            variables + " " NURVA_PROGRAM " " + arguments);
    }
    static json snapshot() { return json::parse(support::contentsOf(example)); }
    std::string file(const std::string& bytes, const std::string& name = "snapshot.json") const {
        return "'" + home.write(name, bytes).string() + "'";
    }

    support::TemporaryFolder home;
};
