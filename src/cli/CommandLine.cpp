#include "cli/CommandLine.hpp"

#include "cli/Commands.hpp"
#include "cli/EmptyValues.hpp"
#include "cli/Failure.hpp"
#include "cli/Message.hpp"
#include "cli/OutputFile.hpp"
#include "cli/WrongUse.hpp"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <exception>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

namespace cli {

namespace {

int report(ExitStatus status, const std::string& text) {
    if (!text.empty())
        std::cerr << "nurva: " << text << '\n';
    return static_cast<int>(status);
}

/// CLI11 counts bytes where it lines up the descriptions of options; letters beyond ASCII have
/// several.
struct HelpFormatter : CLI::Formatter {
    std::string make_option(const CLI::Option* option, bool isPositional) const override {
        const std::string name = make_option_name(option, isPositional) + make_option_opts(option);
        const auto continued = std::count_if(name.begin(), name.end(),
                                             [](unsigned char byte) { return byte >> 6 == 0b10; });
        std::string line = CLI::Formatter::make_option(option, isPositional);
        const std::size_t end = 2 + name.size();
        if (line.compare(end, 1, " ") == 0)
            line.insert(end, static_cast<std::size_t>(continued), ' ');
        return line;
    }
};

void addHelp(CLI::App& command) {
    command.set_help_flag("-h,--help", message("Muestra esta ayuda"))->group(message("Opciones"));
}

/// Puts the words that CLI11 adds to the help into the user's language. Commands added later take
/// them over.
void speakUsersLanguage(CLI::App& app) {
    const auto formatter = std::make_shared<HelpFormatter>();
    formatter->label("Usage", message("Uso"));
    formatter->label("OPTIONS", message("OPCIONES"));
    formatter->label("Positionals", message("Argumentos"));
    formatter->label("SUBCOMMAND", message("ORDEN"));
    formatter->label("REQUIRED", message("OBLIGATORIO"));
    formatter->label("TEXT", message("TEXTO"));
    formatter->label("FLOAT", message("NÚMERO"));
    formatter->label("FILE", message("ARCHIVO"));
    app.formatter(formatter);
    app.option_defaults()->group(message("Opciones"));
    addHelp(app);
}

/// Does what the arguments say, or shows the help that they ask for.
void parse(CLI::App& app, int argumentCount, const char* const* arguments) {
    try {
        app.parse(argumentCount, arguments);
    } catch (const CLI::Success& help) {
        std::ostringstream text;
        app.exit(help, text);
        writeOutput({}, text.str());
    }
}

}  // namespace

int run(int argumentCount, const char* const* arguments) {
    CLI::App app(message("Los widgets de Nurva: dibújalos, pruébalos, revisa su estado"), "nurva");
    speakUsersLanguage(app);
    app.set_version_flag("--version", "NurvaWidgets " NURVA_VERSION, message("Dice qué versión es"))
        ->group(message("Opciones"));
    app.require_subcommand(1);
    addRender(app);
    addTimeline(app);
    addPlaceholder(app);
    addWidgets(app);
    addCheck(app);
    addCheckRequest(app);
    addPerform(app);
    addHost(app);
    addDesktop(app);
    addReload(app);
    addDoctor(app);
    addCompletions(app);
    addManual(app);
    for (CLI::App* command : app.get_subcommands({})) {
        command->group(message("Órdenes"));
        addHelp(*command);
        refuseEmptyValues(*command);
    }
    // For those who package, not for the help.
    app.get_subcommand("manual")->group("");
    try {
        parse(app, argumentCount, arguments);
        return static_cast<int>(ExitStatus::done);
    } catch (const CLI::ParseError& error) {
        return report(ExitStatus::wrongUse, wrongUse(app, error));
    } catch (const Failure& failure) {
        return report(failure.status, failure.what());
    } catch (const std::exception& fault) {
        return report(ExitStatus::couldNot, fault.what());
    }
}

}  // namespace cli
