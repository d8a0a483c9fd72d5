#include "cli/Commands.hpp"
#include "cli/Completions.hpp"
#include "cli/ManualCommands.hpp"
#include "cli/Message.hpp"
#include "cli/OutputFile.hpp"

#include <CLI/CLI.hpp>

#include <memory>

namespace cli {

void addCompletions(CLI::App& app) {
    const auto shell = std::make_shared<std::string>();
    CLI::App& command = *app.add_subcommand(
        "completions", message("Lo que lee un intérprete de órdenes para completar las de nurva"));
    command.add_option("shell", *shell, message("bash, zsh o fish"))
        ->required()
        ->check(CLI::IsMember({"bash", "zsh", "fish"}))
        ->option_text(message("TEXTO") + " " + message("OBLIGATORIO"));
    command.callback([shell, &app] {
        const auto table = commandTable(app);
        writeOutput({}, *shell == "bash"  ? bashCompletions(table)
                        : *shell == "zsh" ? zshCompletions(table)
                                          : fishCompletions(table));
    });
}

void addManual(CLI::App& app) {
    CLI::App& command = *app.add_subcommand("manual", message("Las órdenes, para el manual"));
    command.callback([&app] { writeOutput({}, manualCommands(commandTable(app))); });
}

}  // namespace cli
