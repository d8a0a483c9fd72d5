#include "cli/Commands.hpp"
#include "cli/Failure.hpp"
#include "cli/Message.hpp"
#include "cli/WidgetOptions.hpp"
#include "platform/widgets/WidgetCenter.hpp"

#include <CLI/CLI.hpp>

#include <memory>

namespace cli {

namespace {

void reload(const WidgetOptions& options) {
    if (!options.kind.empty())
        options.widget();
    using widgets::WidgetCenter::Answer;
    switch (widgets::WidgetCenter::reloadTimelines(options.kind)) {
        case Answer::done:
            return;
        case Answer::noBus:
            throw Failure(ExitStatus::couldNot,
                          message("no hay bus de sesión; entra en un escritorio o prueba con "
                                  "dbus-run-session"));
        case Answer::noHost:
            throw Failure(ExitStatus::couldNot,
                          message("no hay ningún escritorio de widgets en marcha; empieza uno con "
                                  "nurva desktop"));
    }
}

}  // namespace

void addReload(CLI::App& app) {
    const auto options = std::make_shared<WidgetOptions>();
    CLI::App& command = *app.add_subcommand(
        "reload", message("Pide al escritorio que vuelva a preguntar a los widgets"));
    command.add_option("kind", options->kind, message("Solo a este; si falta, a todos"));
    command.callback([options] { reload(*options); });
}

}  // namespace cli
