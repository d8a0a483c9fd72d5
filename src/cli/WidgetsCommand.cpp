#include "cli/Commands.hpp"
#include "cli/Message.hpp"
#include "cli/OutputFile.hpp"
#include "extension/NurvaWidgets.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"

#include <CLI/CLI.hpp>

#include <memory>
#include <string>
#include <vector>

namespace widgets {

/// A widget as the gallery lists it, its texts in the user's language.
void encode(foundation::Encoder& encoder, const StaticConfiguration& widget) {
    std::vector<std::string> families;
    for (const WidgetFamily family : widget.families())
        families.push_back(name(family));
    encoder.encodeObject([&] {
        encoder.encodeMember("kind", widget.kind());
        encoder.encodeMember("displayName", cli::message(widget.displayNameKey()));
        encoder.encodeMember("description", cli::message(widget.descriptionKey()));
        encoder.encodeMember("families", families);
    });
}

}  // namespace widgets

namespace cli {

namespace {

std::string gallery(const widgets::WidgetBundle& bundle) {
    std::string lines;
    for (const auto& widget : bundle) {
        lines += widget.kind() + "  " + message(widget.displayNameKey());
        for (const widgets::WidgetFamily family : widget.families())
            lines += " (" + widgets::name(family) + ")";
        lines += "\n    " + message(widget.descriptionKey()) + "\n";
    }
    return lines;
}

}  // namespace

void addWidgets(CLI::App& app) {
    const auto asJSON = std::make_shared<bool>(false);
    CLI::App& command =
        *app.add_subcommand("widgets", message("Los widgets que hay, como en la galería"));
    command.add_flag("--json", *asJSON, message("En JSON"));
    command.callback([asJSON] {
        const widgets::WidgetBundle bundle = nurva::NurvaWidgets();
        writeOutput({},
                    *asJSON ? foundation::JSONEncoder().encode(bundle) + "\n" : gallery(bundle));
    });
}

}  // namespace cli
