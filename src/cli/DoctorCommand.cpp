#include "cli/Commands.hpp"
#include "cli/Failure.hpp"
#include "cli/Findings.hpp"
#include "cli/Message.hpp"
#include "cli/OutputFile.hpp"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace cli {

namespace {

std::string_view mark(Finding::Kind kind) {
    switch (kind) {
        case Finding::Kind::holds:
            return "✓ ";
        case Finding::Kind::lacks:
            return "✗ ";
        case Finding::Kind::note:
            return "· ";
    }
    return {};
}

std::string text(const Finding& finding) {
    std::string text = std::string(mark(finding.kind)) + finding.text + "\n";
    if (!finding.advice.empty())
        text += "    " + finding.advice + "\n";
    return text;
}

void examine() {
    const foundation::Environment environment = foundation::processEnvironment();
    std::vector<Finding> findings;
    for (auto& group : {bundleFindings(environment), containerFindings(environment), busFindings(),
                        extensionFindings(), sandboxFindings(sandbox::available()), fontFindings(),
                        displayFindings()})
        std::ranges::copy(group, std::back_inserter(findings));
    std::string report;
    for (const Finding& finding : findings)
        report += text(finding);
    writeOutput({}, report);
    if (std::ranges::count(findings, Finding::Kind::lacks, &Finding::kind) > 0)
        throw Failure(ExitStatus::couldNot, message("no está todo: falta lo marcado con ✗"));
}

}  // namespace

void addDoctor(CLI::App& app) {
    CLI::App& command = *app.add_subcommand(
        "doctor", message("Mira de qué dependen los widgets: qué está bien y qué falta"));
    command.callback(examine);
}

}  // namespace cli
