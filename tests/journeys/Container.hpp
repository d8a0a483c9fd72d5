#pragma once

#include "estado/EstadoParaWidgets.hpp"

#include <filesystem>
#include <string>

namespace journeys {

/// The folder that the host application and its widgets share in the user's home.
struct Container {
    static std::filesystem::path path();

    /// Publishes a snapshot in place of a host application, dated now.
    static void publish(nurva::EstadoParaWidgets estado);
    static bool hasState();
    static nurva::EstadoParaWidgets state();

    /// Whether what the file of the last request holds is a request; true where there is no file.
    static bool requestIsWhole();
};

/// The snapshot that the demo host application starts a scene with.
nurva::EstadoParaWidgets scene(const std::string& name);

}  // namespace journeys
