#include "cli/Commands.hpp"
#include "cli/Failure.hpp"
#include "cli/FileReport.hpp"
#include "cli/GivenFile.hpp"
#include "cli/Message.hpp"
#include "cli/OutputFile.hpp"
#include "cli/PlainWords.hpp"
#include "estado/EstadoParaWidgets.hpp"
#include "peticiones/Peticion.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "platform/foundation/text/UTF8.hpp"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace cli {

namespace {

struct CheckOptions {
    std::vector<std::string> files;
    bool asJSON = false;
};

template <class Value>
std::string json(const std::string& file, const FileReport<Value>& report) {
    foundation::Encoder encoder;
    encoder.encodeObject([&] {
        encoder.encodeMember("file", foundation::repairedUTF8(file));
        encoder.encodeMember("ok", report.value.has_value());
        encoder.encodeMember("value", report.value);
        if (report.refusal) {
            encoder.encodeMember("kind", report.refusal->kind);
            encoder.encodeMember("path", report.refusal->path);
            encoder.encodeMember("reason", report.refusal->reason);
        }
    });
    return encoder.text() + "\n";
}

template <class Value>
void check(const CheckOptions& options) {
    bool allAccepted = true;
    for (const std::string& file : options.files) {
        const auto report = reportOn<Value>(GivenFile(file), file);
        allAccepted = allAccepted && report.value.has_value();
        if (options.asJSON)
            writeOutput({}, json(file, report));
        else if (report.refusal)
            writeOutput({}, text(file, *report.refusal) + "\n");
        else
            writeOutput({}, message("%@: aceptado", {file}) + "\n");
    }
    if (!allAccepted)
        throw Failure(ExitStatus::couldNot, "");
}

template <class Value>
void addChecking(CLI::App& command, const std::string& files) {
    const auto options = std::make_shared<CheckOptions>();
    takePlainWords(
        *command.add_option("files", options->files, files)->required()->type_name("FILE"));
    command.add_flag("--json", options->asJSON, message("Una línea de JSON por archivo"));
    command.callback([options] { check<Value>(*options); });
}

}  // namespace

void addCheck(CLI::App& app) {
    addChecking<nurva::EstadoParaWidgets>(
        *app.add_subcommand("check",
                            message("Dice si un archivo de estado se acepta, y si no, por qué")),
        message("Archivos de estado («-»: la entrada)"));
}

void addCheckRequest(CLI::App& app) {
    addChecking<nurva::GrupoDeApps::Peticion>(
        *app.add_subcommand("check-request",
                            message("Dice si un archivo de petición se acepta, y si no, por qué")),
        message("Archivos de petición («-»: la entrada)"));
}

}  // namespace cli
