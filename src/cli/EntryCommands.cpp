#include "cli/Commands.hpp"
#include "cli/FileReport.hpp"
#include "cli/Message.hpp"
#include "cli/OutputFile.hpp"
#include "cli/RenderedEntry.hpp"
#include "cli/WidgetOptions.hpp"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace cli {

namespace {

void printTimeline(const WidgetOptions& options) {
    const widgets::StaticConfiguration widget = options.widget();
    const OptionsEnvironment environment(options);
    const auto timeline =
        widget.timeline({.environment = environment, .family = widget.families().front()});
    const widgets::AnyEntry& entry = timeline.entries.front();
    if (!entry.hasState()) {
        if (const auto reason = whyNoSnapshot(environment, options.state))
            std::cerr << "nurva: " << *reason << '\n';
    }
    writeOutput({}, json(entry, timeline.policy.earliest));
}

void printPlaceholder(const WidgetOptions& options) {
    const widgets::StaticConfiguration widget = options.widget();
    const OptionsEnvironment environment(options);
    writeOutput({}, json(widget.placeholder({.environment = environment,
                                             .family = widget.families().front(),
                                             .isPreview = true}),
                         std::nullopt));
}

}  // namespace

void addTimeline(CLI::App& app) {
    const auto options = std::make_shared<WidgetOptions>();
    CLI::App& command =
        *app.add_subcommand("timeline", message("Muestra la entrada actual de un widget en JSON"));
    options->addKind(command);
    options->addState(command);
    options->addNow(command);
    command.callback([options] { printTimeline(*options); });
}

void addPlaceholder(CLI::App& app) {
    const auto options = std::make_shared<WidgetOptions>();
    CLI::App& command = *app.add_subcommand(
        "placeholder", message("Muestra la entrada provisional de un widget en JSON"));
    options->addKind(command);
    options->addNow(command);
    command.callback([options] { printPlaceholder(*options); });
}

}  // namespace cli
