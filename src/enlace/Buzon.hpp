#pragma once

#include "peticiones/Peticion.hpp"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace nurva {

/// Where the requests of the widgets arrive: each is one call of the given function, made within
/// `atender`, and none is handed over twice. What is no request, or was one before the mailbox was
/// there, is not. For one thread, which waits as it likes:
///
///     while (buzon.atender()) {
///         pollfd listo{buzon.descriptor(), buzon.eventos(), 0};
///         poll(&listo, 1, -1);
///     }
class Buzon {
  public:
    using AlLlegar = std::function<void(const GrupoDeApps::Peticion&)>;
    using AlRechazar = std::function<void(const std::string& porQue)>;

    /// Hears from here on what is asked in the container; what is no request is passed over, or
    /// told of with the reason. Throws std::system_error where there is no session bus.
    Buzon(const std::filesystem::path& contenedor, AlLlegar alLlegar, AlRechazar alRechazar = {});
    ~Buzon();

    /// Hands over what has come. False once the connection to the bus is broken: then only a new
    /// mailbox hears anything.
    bool atender();

    /// What to poll for before the next `atender`.
    int descriptor() const;
    short eventos() const;

  private:
    struct Lector;
    std::unique_ptr<Lector> lector_;
};

}  // namespace nurva
