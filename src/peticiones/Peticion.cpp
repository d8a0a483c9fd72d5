#include "peticiones/Peticion.hpp"

#include "platform/foundation/json/Decoder.hpp"
#include "platform/foundation/json/Encoder.hpp"
#include "platform/foundation/json/RecordEquality.hpp"

#include <array>
#include <string_view>
#include <utility>

namespace nurva::GrupoDeApps {

namespace {

constexpr auto nombres =
    std::to_array<std::string_view>({"ponerPerfil", "alternarEncendido", "silenciar", "volumen"});

}  // namespace

std::string_view nombre(Peticion::CodingKeys clave) {
    return nombres.at(static_cast<std::size_t>(clave));
}

bool operator==(const Peticion::PonerPerfil& a, const Peticion::PonerPerfil& b) {
    return foundation::recordsEqual(a, b);
}

bool operator==(const Peticion::Silenciar& a, const Peticion::Silenciar& b) {
    return foundation::recordsEqual(a, b);
}

bool operator==(const Peticion::Volumen& a, const Peticion::Volumen& b) {
    return foundation::recordsEqual(a, b);
}

Peticion Peticion::ponerPerfil(std::string id) {
    return {PonerPerfil{std::move(id)}};
}

Peticion Peticion::alternarEncendido() {
    return {AlternarEncendido{}};
}

Peticion Peticion::silenciar(std::string app, bool si) {
    return {Silenciar{std::move(app), si}};
}

Peticion Peticion::volumen(std::string app, double nivel) {
    return {Volumen{std::move(app), nivel}};
}

void decode(const foundation::Decoder& decoder, Peticion& peticion) {
    const foundation::KeyedDecodingContainer contenedor = decoder.container();
    const std::array<decltype(Peticion::caso), nombres.size()> vacias{
        Peticion::PonerPerfil{}, Peticion::AlternarEncendido{}, Peticion::Silenciar{},
        Peticion::Volumen{}};
    peticion.caso = vacias.at(contenedor.soleKey(nombres));
    std::visit([&](auto& valores) { contenedor.decode(nombre(peticion.clave()), valores); },
               peticion.caso);
}

void encode(foundation::Encoder& encoder, const Peticion& peticion) {
    encoder.encodeObject([&] {
        std::visit(
            [&](const auto& valores) { encoder.encodeMember(nombre(peticion.clave()), valores); },
            peticion.caso);
    });
}

}  // namespace nurva::GrupoDeApps
