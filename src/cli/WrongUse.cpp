#include "cli/WrongUse.hpp"

#include "cli/Message.hpp"

#include <CLI/CLI.hpp>

#include <vector>

namespace cli {

namespace {

std::string commandNames(const CLI::App& app) {
    std::string names;
    for (const CLI::App* command : app.get_subcommands(nullptr))
        if (!command->get_group().empty())
            names += (names.empty() ? "" : ", ") + command->get_name();
    return names;
}

std::string noCommand(const CLI::App& app) {
    const std::vector<std::string> rest = app.remaining();
    if (rest.empty())
        return message("falta la orden; hay: %@", {commandNames(app)});
    if (rest.front().starts_with('-'))
        return message("sobra algo en la orden: %@", {rest.front()});
    return message("no hay ninguna orden «%@»; hay: %@", {rest.front(), commandNames(app)});
}

std::string missing(const CLI::App& command) {
    std::string names;
    for (const CLI::Option* option : command.get_options())
        if (option->get_required() && option->count() == 0)
            names += (names.empty() ? "" : ", ") + option->get_name();
    return message("falta algo en la orden: %@", {names});
}

/// Of a value that does not fit its option; the error begins with the option, or says what could
/// not be converted for it.
std::string wrongValue(const CLI::App& command, const std::string& detail) {
    for (const CLI::Option* option : command.get_options()) {
        const std::string name = option->get_name();
        if (!detail.starts_with(name + ":") && detail.find(": " + name + " =") == std::string::npos)
            continue;
        std::string given = name;
        for (const std::string& value : option->results())
            given += " " + (value.empty() ? "''" : value);
        return message("un valor de la orden no sirve: %@ (%@)",
                       {given, option->get_description()});
    }
    return message("un valor de la orden no sirve: %@", {detail});
}

std::string whatIsWrong(const CLI::App& app,
                        const CLI::App& command,
                        const CLI::ParseError& error) {
    const bool isRequired = dynamic_cast<const CLI::RequiredError*>(&error) != nullptr;
    if (isRequired)
        return &command == &app ? noCommand(app) : missing(command);
    if (dynamic_cast<const CLI::ExtrasError*>(&error))
        return message("sobra algo en la orden: %@", {CLI::detail::join(command.remaining(), " ")});
    return wrongValue(command, error.what());
}

}  // namespace

std::string wrongUse(const CLI::App& app, const CLI::ParseError& error) {
    const std::vector<CLI::App*> given = app.get_subcommands();
    const CLI::App& command = given.empty() ? app : *given.front();
    const std::string name =
        given.empty() ? app.get_name() : app.get_name() + " " + command.get_name();
    return whatIsWrong(app, command, error) + "\n       " + message("ayuda: %@ --help", {name});
}

}  // namespace cli
