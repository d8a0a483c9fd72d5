#include "journeys/Container.hpp"

#include "anfitrion/Escena.hpp"
#include "peticiones/Peticion.hpp"
#include "platform/foundation/SystemClock.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"
#include "platform/foundation/json/DecodingError.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "support/Program.hpp"

#include <algorithm>
#include <cstdlib>

namespace journeys {

namespace {

constexpr const char* group = "group.org.nurva.Nurva";

}  // namespace

std::filesystem::path Container::path() {
    return std::filesystem::path(std::getenv("XDG_DATA_HOME")) / "group-containers" / group;
}

void Container::publish(nurva::EstadoParaWidgets estado) {
    const foundation::DefaultFileManager files;
    estado.cuando = foundation::SystemClock().now();
    files.writeAtomically(foundation::JSONEncoder().encode(estado),
                          files.createContainer(group) / "estado.json");
}

bool Container::hasState() {
    return std::filesystem::exists(path() / "estado.json");
}

nurva::EstadoParaWidgets Container::state() {
    return foundation::JSONDecoder().decode<nurva::EstadoParaWidgets>(
        support::contentsOf(path() / "estado.json"));
}

bool Container::requestIsWhole() {
    const auto file = path() / "peticion.json";
    try {
        if (std::filesystem::exists(file))
            foundation::JSONDecoder().decode<nurva::GrupoDeApps::Peticion>(
                support::contentsOf(file));
        return true;
    } catch (const foundation::DecodingError&) {
        return false;
    }
}

nurva::EstadoParaWidgets scene(const std::string& name) {
    const auto all = anfitrion::escenas();
    return std::ranges::find(all, name, &anfitrion::Escena::nombre)->inicial;
}

}  // namespace journeys
