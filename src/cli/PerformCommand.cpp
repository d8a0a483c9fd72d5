#include "cli/Commands.hpp"
#include "cli/Failure.hpp"
#include "cli/FileReport.hpp"
#include "cli/Message.hpp"
#include "cli/PlainWords.hpp"
#include "peticiones/Acciones.hpp"
#include "platform/foundation/Environment.hpp"
#include "platform/intents/ArchivedFromText.hpp"
#include "platform/intents/IntentError.hpp"

#include <CLI/CLI.hpp>

#include <memory>
#include <string>
#include <vector>

namespace cli {

namespace {

struct PerformOptions {
    std::string action;
    std::vector<std::string> values;  // parameter=value
};

/// The actions with their parameters, such as "PonerVolumen clave= nivel=".
std::string actionNames() {
    std::string names;
    for (const intents::IntentDescription& action : nurva::acciones().descriptions()) {
        names += (names.empty() ? "" : ", ") + std::string(action.identifier);
        for (const auto& parameter : action.parameters)
            names += " " + std::string(parameter.name) + "=";
    }
    return names;
}

std::string text(const intents::IntentError& error) {
    using Kind = intents::IntentError::Kind;
    switch (error.kind) {
        case Kind::unknownAction:
            return message("no hay ninguna acción «%@»; hay: %@", {error.action, actionNames()});
        case Kind::missingParameter:
            return message("a %@ le falta un valor: %@=…", {error.action, error.parameter});
        case Kind::unknownParameter:
            return message("%@ no lleva ningún «%@»; hay: %@",
                           {error.action, error.parameter, actionNames()});
        case Kind::repeatedParameter:
            return message("%@ lleva %@ una sola vez", {error.action, error.parameter});
        case Kind::wrongType:
            return message("el valor de %@ no es de su tipo en %@",
                           {error.parameter, error.action});
    }
    return {};
}

void perform(const PerformOptions& options) {
    const intents::IntentRegistry& registry = nurva::acciones();
    const foundation::Environment environment = foundation::processEnvironment();
    try {
        const auto& description = registry.description(options.action);
        const auto performance =
            registry.performance(intents::archivedFromText(description, options.values));
        if (const auto reason = whyNoContainer(environment))
            throw Failure(ExitStatus::couldNot, *reason);
        performance(environment);
    } catch (const intents::IntentError& error) {
        throw Failure(ExitStatus::wrongUse, text(error));
    }
}

}  // namespace

void addPerform(CLI::App& app) {
    const auto options = std::make_shared<PerformOptions>();
    CLI::App& command =
        *app.add_subcommand("perform", message("Ejecuta una acción, como al pulsar un control"));
    command.add_option("action", options->action, message("La acción: %@", {actionNames()}))
        ->required();
    takePlainWords(*command.add_option("values", options->values,
                                       message("Sus valores, por ejemplo clave=a nivel=0.5")));
    command.callback([options] { perform(*options); });
}

}  // namespace cli
