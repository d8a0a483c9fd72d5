#include "cli/Commands.hpp"
#include "cli/Failure.hpp"
#include "cli/Message.hpp"
#include "platform/foundation/InstalledProgram.hpp"

#include <CLI/CLI.hpp>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace cli {

namespace {

/// The desktop is a program of its own, so that this one need not load a toolkit to draw a picture.
[[noreturn]] void becomeDesktop(std::vector<std::string> arguments) {
    const auto program = foundation::installedProgram("nurva-desktop");
    if (!program)
        throw Failure(ExitStatus::couldNot,
                      message("aquí no está instalado el escritorio de widgets (nurva-desktop)"));
    arguments.insert(arguments.begin(), program->string());
    std::vector<char*> words;
    for (std::string& argument : arguments)
        words.push_back(argument.data());
    words.push_back(nullptr);
    ::execv(program->c_str(), words.data());
    throw Failure(ExitStatus::couldNot,
                  message("no se puede arrancar %@: %@",
                          {program->string(), std::string(std::strerror(errno))}));
}

}  // namespace

void addDesktop(CLI::App& app) {
    CLI::App& command =
        *app.add_subcommand("desktop", message("Pone los widgets en el escritorio"));
    command.prefix_command();
    command.callback([&command] { becomeDesktop(command.remaining()); });
}

}  // namespace cli
