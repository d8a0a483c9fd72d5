#include "cli/ManualCommands.hpp"

#include <string_view>

namespace cli {

namespace {

/// A text as roff reads it: nothing in it is a request or an escape, and a hyphen is one.
std::string roff(std::string_view text) {
    std::string result;
    for (const char letter : text) {
        if (letter == '\\')
            result += "\\e";
        else if (letter == '-')
            result += "\\-";
        else
            result += letter;
    }
    if (result.starts_with('.') || result.starts_with('\''))
        result.insert(0, "\\&");
    return result;
}

std::string usage(const CommandRow& command) {
    std::string line = "nurva " + command.name;
    for (const ArgumentRow& argument : command.arguments) {
        const std::string value = argument.value + (argument.isRepeated ? " ..." : "");
        line += argument.isRequired ? " " + value : " [" + value + "]";
    }
    return line;
}

std::string option(const ArgumentRow& option) {
    std::string names;
    for (const std::string& name : option.names)
        names += (names.empty() ? "\\fB" : ", \\fB") + roff(name) + "\\fR";
    if (!option.value.empty())
        names += " \\fI" + roff(option.value) + "\\fR";
    return ".TP\n" + names + "\n" + roff(option.description) + "\n";
}

}  // namespace

std::string manualCommands(const std::vector<CommandRow>& table) {
    std::string text;
    for (const CommandRow& command : table) {
        text += ".SS " + roff(usage(command)) + "\n" + roff(command.description) + "\n";
        for (const ArgumentRow& argument : command.arguments)
            text +=
                ".TP\n\\fI" + roff(argument.value) + "\\fR\n" + roff(argument.description) + "\n";
        for (const ArgumentRow& row : command.options)
            text += option(row);
    }
    return text;
}

}  // namespace cli
