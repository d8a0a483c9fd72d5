#include "anfitrion/Bucle.hpp"

#include "enlace/Buzon.hpp"
#include "platform/foundation/files/FileDescriptor.hpp"

#include <poll.h>
#include <signal.h>
#include <sys/signalfd.h>

#include <array>
#include <cerrno>
#include <cmath>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace anfitrion {

namespace {

/// A descriptor that becomes readable when the process is asked to end.
foundation::FileDescriptor avisoDeFin() {
    sigset_t senales;
    sigemptyset(&senales);
    sigaddset(&senales, SIGINT);
    sigaddset(&senales, SIGTERM);
    if (const int falla = ::pthread_sigmask(SIG_BLOCK, &senales, nullptr); falla != 0)
        throw std::system_error(falla, std::generic_category(), "pthread_sigmask");
    foundation::FileDescriptor descriptor(::signalfd(-1, &senales, SFD_CLOEXEC));
    if (!descriptor)
        throw std::system_error(errno, std::generic_category(), "signalfd");
    return descriptor;
}

}  // namespace

void representar(Escena escena,
                 const std::filesystem::path& contenedor,
                 const foundation::Environment& entorno,
                 const Aviso& aviso) {
    const foundation::FileDescriptor fin = avisoDeFin();
    std::optional<Anfitrion> anfitrion;
    nurva::Buzon buzon(
        contenedor,
        [&](const nurva::GrupoDeApps::Peticion& peticion) { anfitrion->atender(peticion); },
        [&](const std::string& porQue) { anfitrion->rechazar(porQue); });
    anfitrion.emplace(std::move(escena), contenedor, entorno, aviso);
    while (buzon.atender()) {
        anfitrion->seguir();
        std::array<pollfd, 2> listos{pollfd{fin.number(), POLLIN, 0},
                                     pollfd{buzon.descriptor(), buzon.eventos(), 0}};
        const double milisegundos = std::ceil(anfitrion->segundosHastaSeguir() * 1000);
        if (::poll(listos.data(), listos.size(), static_cast<int>(milisegundos)) < 0 &&
            errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "poll");
        if (listos[0].revents != 0)
            return;
    }
    throw std::system_error(ECONNRESET, std::generic_category(), "D-Bus");
}

}  // namespace anfitrion
