#include "cli/EmptyValues.hpp"

#include <CLI/CLI.hpp>

#include <string>

namespace cli {

void refuseEmptyValues(CLI::App& command) {
    for (CLI::Option* option : command.get_options(
             [](const CLI::Option* given) { return given->get_items_expected_max() == 1; }))
        option->check(
            [](const std::string& value) -> std::string { return value.empty() ? "empty" : ""; });
}

}  // namespace cli
