#include "cli/WidgetOptions.hpp"

#include "cli/Failure.hpp"
#include "cli/FixedClock.hpp"
#include "cli/GivenFile.hpp"
#include "cli/Message.hpp"
#include "extension/NurvaWidgets.hpp"

#include <CLI/CLI.hpp>

#include <cmath>

namespace cli {

namespace {

std::unique_ptr<const foundation::FileManager> filesOf(const WidgetOptions& options) {
    return options.state ? std::make_unique<const GivenFile>(*options.state) : nullptr;
}

void requireFinite(double number) {
    if (!std::isfinite(number))
        throw Failure(ExitStatus::wrongUse, message("«%@» no es un número de los que van aquí",
                                                    {std::to_string(number)}));
}

std::unique_ptr<const foundation::Clock> clockOf(const WidgetOptions& options) {
    if (!options.now)
        return nullptr;
    requireFinite(*options.now);
    return std::make_unique<const FixedClock>(foundation::Date{*options.now});
}

}  // namespace

void WidgetOptions::addKind(CLI::App& command) {
    command.add_option("kind", kind, message("El widget, por ejemplo nurva.queEstaPuesto"))
        ->required();
}

void WidgetOptions::addState(CLI::App& command) {
    command
        .add_option("--state", state,
                    message("Archivo del estado («-»: la entrada); si falta, el del contenedor"))
        ->type_name("FILE");
}

void WidgetOptions::addNow(CLI::App& command) {
    command.add_option("--now", now,
                       message("La hora, en segundos desde 2001-01-01 UTC; si falta, la de ahora"));
}

widgets::StaticConfiguration WidgetOptions::widget() const {
    const widgets::WidgetBundle bundle = nurva::NurvaWidgets();
    if (const auto* widget = widgets::widgetOfKind(bundle, kind))
        return *widget;
    std::string kinds;
    for (const auto& widget : bundle)
        kinds += (kinds.empty() ? "" : ", ") + widget.kind();
    throw Failure(ExitStatus::wrongUse,
                  message("no hay ningún widget «%@»; hay: %@", {kind, kinds}));
}

OptionsEnvironment::OptionsEnvironment(const WidgetOptions& options)
    : files_(filesOf(options)), clock_(clockOf(options)), environment_([&] {
          const foundation::Environment process = foundation::processEnvironment();
          return foundation::Environment{clock_ ? *clock_ : process.clock,
                                         files_ ? *files_ : process.fileManager,
                                         process.notifications, process.mainBundle, process.locale};
      }()) {}

}  // namespace cli
