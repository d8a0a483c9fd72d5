#include "cli/Commands.hpp"
#include "cli/Failure.hpp"
#include "cli/Message.hpp"
#include "platform/foundation/bundle/InstalledProgram.hpp"

#include <CLI/CLI.hpp>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace cli {

namespace {

struct DesktopOptions {
    bool windows = false;
    bool gallery = false;
    bool requireSandbox = false;
    std::string scale;
    std::string extension;

    std::vector<std::string> words() const {
        std::vector<std::string> words;
        const auto add = [&](bool isGiven, const std::string& word) {
            if (isGiven)
                words.push_back(word);
        };
        add(windows, "--windows");
        add(gallery, "--gallery");
        add(requireSandbox, "--require-sandbox");
        add(!scale.empty(), "--scale=" + scale);
        add(!extension.empty(), "--extension=" + extension);
        return words;
    }
};

/// The desktop is a program of its own, so that this one need not load a toolkit to draw a picture.
[[noreturn]] void become(const DesktopOptions& options) {
    const auto program = foundation::installedProgram("nurva-desktop");
    if (!program)
        throw Failure(ExitStatus::couldNot,
                      message("aquí no está instalado el escritorio de widgets (nurva-desktop)"));
    std::vector<std::string> arguments = options.words();
    arguments.insert(arguments.begin(), program->string());
    std::vector<char*> words;
    words.reserve(arguments.size() + 1);
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
    const auto options = std::make_shared<DesktopOptions>();
    CLI::App& command =
        *app.add_subcommand("desktop", message("Pone los widgets en el escritorio"));
    command.add_flag("--gallery", options->gallery, message("Abre la galería de widgets"));
    command.add_flag("--windows", options->windows,
                     message("Pone los widgets en ventanas normales"));
    command
        .add_option("--scale", options->scale,
                    message("Píxeles por punto, si no valen los de la pantalla"))
        ->type_name("FLOAT")
        ->check(CLI::Validator(CLI::Number).description(""));
    command.add_option("--extension", options->extension, message("El programa de la extensión"))
        ->type_name("FILE");
    command.add_flag("--require-sandbox", options->requireSandbox,
                     message("No arranca la extensión sin su aislamiento entero"));
    command.callback([options] { become(*options); });
}

}  // namespace cli
