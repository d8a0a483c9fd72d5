#include "anfitrion/Bucle.hpp"
#include "cli/Commands.hpp"
#include "cli/Failure.hpp"
#include "cli/FileReport.hpp"
#include "cli/Message.hpp"
#include "estado/GrupoDeApps.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"
#include "platform/foundation/files/FileError.hpp"

#include <CLI/CLI.hpp>

#include <cstring>
#include <iostream>
#include <memory>
#include <system_error>

namespace cli {

namespace {

struct HostOptions {
    bool demo = false;
    std::string scene;
};

std::string sceneNames() {
    std::string names;
    for (const anfitrion::Escena& scene : anfitrion::escenas())
        names += (names.empty() ? "" : ", ") + scene.nombre;
    return names;
}

/// The scene of this name; the first where there is none.
anfitrion::Escena sceneNamed(const std::string& name) {
    for (const anfitrion::Escena& scene : anfitrion::escenas())
        if (name.empty() || scene.nombre == name)
            return scene;
    throw Failure(ExitStatus::wrongUse,
                  message("no hay ninguna escena «%@»; hay: %@", {name, sceneNames()}));
}

void host(const HostOptions& options) {
    if (!options.demo)
        throw Failure(ExitStatus::wrongUse,
                      message("aquí solo hay un anfitrión de demostración: nurva host --demo"));
    anfitrion::Escena scene = sceneNamed(options.scene);
    const foundation::Environment environment = foundation::processEnvironment();
    try {
        const foundation::DefaultFileManager files;
        const std::string& group = nurva::GrupoDeApps::id(environment);
        if (const auto reason = whyNoPlace(group))
            throw Failure(ExitStatus::couldNot, *reason);
        const auto container = files.createContainer(group);
        std::cerr << "nurva: " << message("anfitrión de demostración en %@", {container.string()})
                  << std::endl;
        anfitrion::representar(std::move(scene), container, environment,
                               [](std::string_view key, const auto& arguments) {
                                   std::cerr << "nurva: " << message(key, arguments) << std::endl;
                               });
    } catch (const foundation::FileError& error) {
        throw Failure(ExitStatus::couldNot,
                      message("no se puede crear el contenedor %@: %@",
                              {error.path().string(), std::string(std::strerror(error.code()))}));
    } catch (const std::system_error& error) {
        throw Failure(ExitStatus::couldNot,
                      message("no hay bus de sesión (%@); prueba con dbus-run-session",
                              {std::string(error.what())}));
    }
}

}  // namespace

void addHost(CLI::App& app) {
    const auto options = std::make_shared<HostOptions>();
    CLI::App& command = *app.add_subcommand(
        "host", message("Hace de Nurva: publica un estado y atiende a los widgets"));
    command.add_flag("--demo", options->demo, message("El anfitrión de demostración"));
    command.add_option("--scene", options->scene,
                       message("La escena que representa: %@", {sceneNames()}));
    command.callback([options] { host(*options); });
}

}  // namespace cli
