#pragma once

#include "cli/CommandTable.hpp"

#include <string>
#include <vector>

namespace cli {

// What a shell has to read to complete the words of `nurva`.

std::string bashCompletions(const std::vector<CommandRow>& table);
std::string zshCompletions(const std::vector<CommandRow>& table);
std::string fishCompletions(const std::vector<CommandRow>& table);

}  // namespace cli
