#include "cli/Findings.hpp"
#include "cli/Message.hpp"
#include "platform/foundation/EnvironmentVariables.hpp"
#include "platform/foundation/bundle/InstalledProgram.hpp"
#include "platform/foundation/notifications/SessionBus.hpp"
#include "platform/widgets/WidgetCenter.hpp"
#include "widgethost/MainLoop.hpp"
#include "widgethost/Session.hpp"

#include <glib.h>

#include <chrono>
#include <filesystem>
#include <system_error>

namespace cli {

namespace {

using enum Finding::Kind;

/// Lets the main context work until the extension has told of its widgets. False when it does not.
bool answers(widgethost::Session& session) {
    bool isTimeUp = false;
    const widgethost::Source end =
        widgethost::after(std::chrono::seconds(3), [&] { isTimeUp = true; });
    while (session.gallery().empty() && !isTimeUp)
        g_main_context_iteration(nullptr, TRUE);
    return !session.gallery().empty();
}

/// The socket of an X display such as ":0" or ":1.0"; nothing for one on another machine.
std::filesystem::path xSocket(const std::string& display) {
    if (!display.starts_with(':'))
        return {};
    return "/tmp/.X11-unix/X" + display.substr(1, display.find('.') - 1);
}

}  // namespace

std::vector<Finding> busFindings() {
    using widgets::WidgetCenter::Answer;
    switch (widgets::WidgetCenter::ping()) {
        case Answer::done:
            return {
                {holds, message("bus de sesión: lo hay, y en él un escritorio de widgets"), {}}};
        case Answer::noHost:
            return {{holds, message("bus de sesión: lo hay"), {}},
                    {note, message("no hay ningún escritorio de widgets en marcha"),
                     message("empieza uno con nurva desktop")}};
        case Answer::noBus:
            break;
    }
    return {{lacks, message("no hay bus de sesión: Nurva no se entera de lo que pulsas"),
             message("entra en un escritorio, o prueba con dbus-run-session")}};
}

std::vector<Finding> extensionFindings() {
    const auto program = foundation::installedProgram("nurva-widgets-extension");
    if (!program)
        return {{lacks, message("no está la extensión (nurva-widgets-extension)"),
                 message("instala NurvaWidgets de nuevo")}};
    try {
        widgethost::Session session({.extension = *program, .isAlone = true});
        if (!answers(session))
            return {{lacks,
                     message("la extensión no arranca o no contesta: %@", {program->string()}),
                     message("mira lo que ha escrito más arriba")}};
        const auto count = static_cast<std::int64_t>(session.gallery().size());
        return {
            {holds, message("extensión: %@, con %lld widgets", {program->string(), count}), {}}};
    } catch (const std::system_error& error) {
        return {{lacks,
                 message("no se puede arrancar la extensión: %@", {std::string(error.what())}),
                 message("cierra otros programas y prueba de nuevo")}};
    }
}

std::vector<Finding> sandboxFindings(const sandbox::Confinement& confinement) {
    std::vector<Finding> findings;
    if (confinement.landlockABI > 0)
        findings.push_back({holds,
                            message("aislamiento: Landlock, versión %lld",
                                    {std::int64_t{confinement.landlockABI}}),
                            {}});
    else
        findings.push_back({note,
                            message("este núcleo no tiene Landlock: la extensión puede leer tus "
                                    "archivos"),
                            message("usa un núcleo 5.13 o posterior con Landlock activado")});
    if (confinement.callsAreFiltered)
        findings.push_back({holds, message("aislamiento: filtro de llamadas (seccomp)"), {}});
    else
        findings.push_back({note, message("este núcleo no filtra llamadas (seccomp)"),
                            message("usa un núcleo con CONFIG_SECCOMP_FILTER")});
    if (!confinement.isComplete())
        findings.push_back({note,
                            message("este núcleo no da el aislamiento entero: nurva desktop "
                                    "--require-sandbox no arranca la extensión"),
                            message("lo da un núcleo 6.12 o posterior con Landlock y seccomp")});
    return findings;
}

std::vector<Finding> displayFindings() {
    const auto variables = foundation::EnvironmentVariables::ofProcess();
    std::error_code ignored;
    if (const auto wayland = variables.value("WAYLAND_DISPLAY")) {
        const std::filesystem::path folder = variables.value("XDG_RUNTIME_DIR").value_or("");
        if (std::filesystem::is_socket(folder / *wayland, ignored))
            return {{holds,
                     message("pantalla: Wayland (%@); sin capa de escritorio, los widgets "
                             "van en ventanas",
                             {*wayland}),
                     {}}};
    }
    const auto display = variables.value("DISPLAY");
    if (display &&
        (xSocket(*display).empty() || std::filesystem::is_socket(xSocket(*display), ignored)))
        return {{holds, message("pantalla: X11 (%@)", {*display}), {}}};
    return {{note, message("no hay pantalla: nurva desktop no puede abrir ventanas"),
             message("sin pantalla, nurva render dibuja los widgets en archivos")}};
}

}  // namespace cli
