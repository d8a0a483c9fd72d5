#include "cli/FileReport.hpp"
#include "cli/Findings.hpp"
#include "cli/Message.hpp"
#include "estado/CargarEstado.hpp"
#include "estado/GrupoDeApps.hpp"
#include "platform/canvas/FontFiles.hpp"
#include "platform/foundation/bundle/Entitlements.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"
#include "vistas/Cara.hpp"

#include <algorithm>
#include <cmath>

namespace cli {

namespace {

using enum Finding::Kind;

/// In seconds. Less than that two machines' clocks may differ.
constexpr std::int64_t minuteOfAnotherClock = 60;

Finding snapshotFinding(const foundation::Environment& environment,
                        const std::filesystem::path& file) {
    const auto report = reportOn<nurva::EstadoParaWidgets>(environment.fileManager, file);
    if (report.refusal)
        return {lacks, text(file.string(), *report.refusal),
                message("abre Nurva, o revisa el archivo con nurva check")};
    const double age = environment.clock.now().timeIntervalSince(report.value->cuando);
    const auto seconds = static_cast<std::int64_t>(std::clamp(std::round(age), -1e12, 1e12));
    if (seconds < -minuteOfAnotherClock)
        return {
            note,
            message("estado: %@, con fecha de dentro de %lld segundos", {file.string(), -seconds}),
            message("cuando se cuenta desde 2001-01-01 UTC")};
    if (age < nurva::segundosDeVigencia)
        return {holds, message("estado: %@, de hace %lld segundos", {file.string(), seconds})};
    return {note, message("estado: %@, de hace %lld segundos: los widgets dicen que Nurva está "
                          "cerrado",
                          {file.string(), seconds})};
}

}  // namespace

std::vector<Finding> containerFindings(const foundation::Environment& environment) {
    const std::string& group = nurva::GrupoDeApps::id(environment);
    if (!foundation::DefaultFileManager::namesContainer(group))
        return {{lacks, whyNoPlace(group).value(),
                 message("revisa GrupoDeApps en el Info.plist del paquete")}};
    const auto container = environment.fileManager.containerURL(group);
    std::vector<Finding> findings;
    const auto groups = foundation::Entitlements::of(environment.mainBundle).applicationGroups;
    if (std::ranges::find(groups, group) == groups.end())
        findings.push_back({lacks,
                            message("la extensión no tiene permiso para el grupo %@", {group}),
                            message("añádelo a Entitlements.plist de su paquete")});
    if (!container) {
        if (const auto reason = whyNoPlace(group))
            findings.push_back({lacks, *reason, {}});
        else
            findings.push_back(
                {lacks, message("no existe el contenedor del grupo %@", {group}),
                 message("abre Nurva una vez; sin Nurva, prueba nurva host --demo")});
        return findings;
    }
    findings.push_back({holds, message("contenedor: %@", {container->string()}), {}});
    findings.push_back(snapshotFinding(environment, *container / nurva::archivoDeEstado));
    return findings;
}

std::vector<Finding> bundleFindings(const foundation::Environment& environment) {
    const foundation::Bundle& bundle = environment.mainBundle;
    if (!bundle.objectForInfoDictionaryKey("CFBundleIdentifier"))
        return {{lacks, message("no está el paquete de la extensión: %@", {bundle.path().string()}),
                 message("instala NurvaWidgets de nuevo, o di dónde está con NURVA_BUNDLE")}};
    const std::string& language = bundle.localizedTable().language();
    return {{holds, message("paquete: %@", {bundle.path().string()}), {}},
            {holds,
             message("idioma: %@; números como en %@",
                     {language.empty() ? "es" : language, environment.locale.identifier}),
             {}}};
}

std::vector<Finding> fontFindings() {
    std::vector<Finding> findings;
    for (const auto design : {views::FontDesign::standard, views::FontDesign::monospaced}) {
        const std::string family = canvas::standInFamily(design);
        if (canvas::standInFile(design, views::FontWeight::regular))
            findings.push_back({holds, message("tipo de letra: %@", {family}), {}});
        else
            findings.push_back(
                {note, message("falta el tipo de letra %@; los widgets usan otro", {family}),
                 message("instala el paquete de tu distribución con %@", {family})});
    }
    return findings;
}

}  // namespace cli
