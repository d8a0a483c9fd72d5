#pragma once

#include "anfitrion/Escena.hpp"
#include "peticiones/Peticion.hpp"
#include "platform/foundation/Environment.hpp"
#include "platform/foundation/localization/FormatArgument.hpp"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace anfitrion {

/// How the demo host application tells what it refused or could not do: a Spanish key and its
/// arguments.
using Aviso = std::function<void(std::string_view, const std::vector<foundation::FormatArgument>&)>;

/// The demo host application: publishes the snapshot of a scene in the group's container, and does
/// what the widgets ask for. For one thread.
class Anfitrion {
  public:
    /// Publishes the first snapshot in the container of the group.
    Anfitrion(Escena escena,
              std::filesystem::path contenedor,
              const foundation::Environment& entorno,
              Aviso aviso);

    /// Does what is asked and publishes what came of it, or says why not.
    void atender(const nurva::GrupoDeApps::Peticion& peticion);

    /// Says why something is no request.
    void rechazar(const std::string& porQue) const;

    /// Plays the steps whose time has come, and publishes again what is about to be too old.
    void seguir();

    /// Seconds until `seguir` has something to do, some minutes at most.
    double segundosHastaSeguir() const;

  private:
    void publicar();

    const foundation::Environment& entorno_;
    Aviso aviso_;
    std::vector<Paso> pasos_;
    nurva::EstadoParaWidgets estado_;
    std::filesystem::path contenedor_;
    std::size_t siguiente_ = 0;
    foundation::Date ultimoPaso_;
};

}  // namespace anfitrion
