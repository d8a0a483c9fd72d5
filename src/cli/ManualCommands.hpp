#pragma once

#include "cli/CommandTable.hpp"

#include <string>
#include <vector>

namespace cli {

/// The commands as a section of a manual page, in roff with the macros of `man`.
std::string manualCommands(const std::vector<CommandRow>& table);

}  // namespace cli
