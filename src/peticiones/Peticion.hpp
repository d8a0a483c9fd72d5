#pragma once

#include "platform/foundation/json/CodingKey.hpp"

#include <string>
#include <string_view>
#include <tuple>
#include <variant>

namespace foundation {
class Decoder;
class Encoder;
}  // namespace foundation

namespace nurva::GrupoDeApps {

/// What a widget asks of the host application, which reads it as a JSON object of one member: the
/// case, holding the case's values.
struct Peticion {
    /// Apply the profile with this id.
    struct PonerPerfil {
        std::string _0;
        static constexpr std::tuple CodingKeys{foundation::CodingKey{"_0", &PonerPerfil::_0}};
        friend bool operator==(const PonerPerfil& a, const PonerPerfil& b);
    };
    /// Switch the equalizer on if it is off, and off if it is on.
    struct AlternarEncendido {
        static constexpr std::tuple<> CodingKeys{};
        friend bool operator==(const AlternarEncendido&, const AlternarEncendido&) = default;
    };
    /// Mute the application with this id, or unmute it.
    struct Silenciar {
        std::string app;
        bool si = false;
        static constexpr std::tuple CodingKeys{foundation::CodingKey{"app", &Silenciar::app},
                                               foundation::CodingKey{"si", &Silenciar::si}};
        friend bool operator==(const Silenciar& a, const Silenciar& b);
    };
    /// Set the volume of the application with this id: 0 silent to 1 full, passed on whatever it
    /// is.
    struct Volumen {
        std::string app;
        double nivel = 0;
        static constexpr std::tuple CodingKeys{foundation::CodingKey{"app", &Volumen::app},
                                               foundation::CodingKey{"nivel", &Volumen::nivel}};
        friend bool operator==(const Volumen& a, const Volumen& b);
    };

    /// The key of each case, in the order of the cases. Each key's text is its name.
    enum class CodingKeys { ponerPerfil, alternarEncendido, silenciar, volumen };

    /// The keys of each case's values.
    static constexpr auto& PonerPerfilCodingKeys = PonerPerfil::CodingKeys;
    static constexpr auto& AlternarEncendidoCodingKeys = AlternarEncendido::CodingKeys;
    static constexpr auto& SilenciarCodingKeys = Silenciar::CodingKeys;
    static constexpr auto& VolumenCodingKeys = Volumen::CodingKeys;

    std::variant<PonerPerfil, AlternarEncendido, Silenciar, Volumen> caso;

    static Peticion ponerPerfil(std::string id);
    static Peticion alternarEncendido();
    static Peticion silenciar(std::string app, bool si);
    static Peticion volumen(std::string app, double nivel);

    CodingKeys clave() const { return static_cast<CodingKeys>(caso.index()); }

    /// The same case with the same values: strings that show the same are equal, a NaN level is
    /// equal to nothing.
    friend bool operator==(const Peticion&, const Peticion&) = default;
};

/// The text of a key.
std::string_view nombre(Peticion::CodingKeys clave);

/// Throws DecodingError.
void decode(const foundation::Decoder& decoder, Peticion& peticion);
/// Throws EncodingError for a level that is not finite.
void encode(foundation::Encoder& encoder, const Peticion& peticion);

}  // namespace nurva::GrupoDeApps
