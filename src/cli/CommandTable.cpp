#include "cli/CommandTable.hpp"

#include "anfitrion/Escena.hpp"
#include "cli/Message.hpp"
#include "extension/NurvaWidgets.hpp"
#include "peticiones/Acciones.hpp"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <string_view>

namespace cli {

namespace {

std::vector<std::string> choices(std::string_view name) {
    std::vector<std::string> words;
    if (name == "kind")
        for (const auto& widget : nurva::NurvaWidgets())
            words.push_back(widget.kind());
    else if (name == "action")
        for (const auto& action : nurva::acciones().descriptions())
            words.emplace_back(action.identifier);
    else if (name == "scene")
        for (const auto& scene : anfitrion::escenas())
            words.push_back(scene.nombre);
    else if (name == "format")
        words = {"png", "svg", "json"};
    else if (name == "shell")
        words = {"bash", "zsh", "fish"};
    return words;
}

bool namesFile(std::string_view name) {
    constexpr std::array<std::string_view, 4> files{"state", "output", "files", "extension"};
    return std::ranges::find(files, name) != files.end();
}

/// What stands for the option's value, as in the help but without the choices that CLI11 adds.
std::string valueName(const CLI::Option& option, const CLI::FormatterBase& help) {
    const std::string type = option.get_type_name();
    return help.get_label(type.substr(0, type.find(':')));
}

ArgumentRow row(const CLI::Option& option, const CLI::FormatterBase& help) {
    const std::string& name = option.get_single_name();
    ArgumentRow row{.description = option.get_description(),
                    .choices = choices(name),
                    .isFile = namesFile(name),
                    .isRepeated = option.get_items_expected_max() > 1,
                    .isRequired = option.get_required()};
    for (const std::string& letter : option.get_snames())
        row.names.push_back("-" + letter);
    for (const std::string& word : option.get_lnames())
        row.names.push_back("--" + word);
    if (option.get_items_expected_max() > 0)
        row.value = option.get_positional() ? name : valueName(option, help);
    return row;
}

}  // namespace

std::vector<CommandRow> commandTable(const CLI::App& app) {
    std::vector<CommandRow> table;
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
        if (command->get_group().empty())
            continue;
        CommandRow commandRow{.name = command->get_name(),
                              .description = command->get_description()};
        for (const CLI::Option* option : command->get_options())
            (option->get_positional() ? commandRow.arguments : commandRow.options)
                .push_back(row(*option, *app.get_formatter()));
        table.push_back(std::move(commandRow));
    }
    return table;
}

}  // namespace cli
