#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace cli {

/// An option or an argument of a command, as completions and the manual need it.
struct ArgumentRow {
    std::vector<std::string> names;  // "-o", "--output"; none of an argument without a name
    std::string value;               // what stands for its value in the help; empty for a flag
    std::string description;
    std::vector<std::string> choices;  // where only these make sense
    bool isFile = false;
    bool isRepeated = false;
    bool isRequired = false;
};

struct CommandRow {
    std::string name;
    std::string description;
    std::vector<ArgumentRow> options;
    std::vector<ArgumentRow> arguments;
};

/// All commands of the command line that users see, in the order of the help.
std::vector<CommandRow> commandTable(const CLI::App& app);

}  // namespace cli
