#pragma once

#include "estado/EstadoParaWidgets.hpp"

#include <filesystem>
#include <string>

namespace nurva {

/// Shows the widgets what the host application wants shown. For one thread.
class Publicador {
  public:
    /// Makes the container shared with the widgets, for the user alone, where there is none. Its
    /// group is the one of the widgets' bundle, where this program finds it beside itself or by
    /// NURVA_BUNDLE, else the usual one. Throws std::runtime_error where that does not work.
    Publicador();

    /// The same for another group.
    explicit Publicador(const std::string& grupo);

    const std::filesystem::path& contenedor() const { return contenedor_; }

    /// Dates the snapshot now, puts it whole in the place of the last one, and asks the widget host
    /// to show it; without one it is there for the next. Throws std::exception where it cannot be
    /// written: a number that is not finite, a text that is not UTF-8, a full disk. Then the
    /// widgets still have the last one.
    void publicar(EstadoParaWidgets estado) const;

  private:
    std::filesystem::path contenedor_;
};

}  // namespace nurva
