#pragma once

#include "estado/AppCorta.hpp"
#include "estado/PerfilCorto.hpp"
#include "platform/foundation/Date.hpp"
#include "platform/foundation/json/CodingKey.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace nurva {

/// Everything the widgets show, as the host application publishes it in one file.
///
/// The initial values are those of the placeholder. They never stand in for a field that a file
/// lacks: every field that is not optional is required.
struct EstadoParaWidgets {
    static constexpr std::size_t bandas = 13;

    std::string perfil = "Música";                            ///< name of the profile now applied
    std::string razon;                                        ///< why it is on
    std::vector<double> curva = std::vector<double>(bandas);  ///< its gains in decibels
    bool prendido = true;                                     ///< the equalizer is on
    bool automatico = true;                                   ///< the profile chooses itself
    std::string salida;                                       ///< name of the audio output
    bool salidaMedida = false;                                ///< that output has been measured
    std::optional<double> cuartoAhora;  ///< deviation of the room in decibels, corrected
    std::optional<double> cuartoAntes;  ///< the same without the correction
    std::string medidoHace;             ///< when it was measured, as ready-made text
    std::int64_t salidasSinMedir = 0;
    std::vector<PerfilCorto> perfiles;
    std::vector<AppCorta> apps;
    bool dejaCambiar = false;           ///< the controls may send requests
    std::uint32_t acento = 0x5CE49A;    ///< 0xRRGGBB in the low 24 bits
    std::optional<std::string> idioma;  ///< code of the language chosen in the host application
    foundation::Date cuando;            ///< when the host application wrote it, which says so

    /// The placeholder. It is made now, and what time it is the caller says, as everywhere.
    static EstadoParaWidgets porDefecto(foundation::Date ahora);

    static constexpr std::tuple CodingKeys{
        foundation::CodingKey{"perfil", &EstadoParaWidgets::perfil},
        foundation::CodingKey{"razon", &EstadoParaWidgets::razon},
        foundation::CodingKey{"curva", &EstadoParaWidgets::curva},
        foundation::CodingKey{"prendido", &EstadoParaWidgets::prendido},
        foundation::CodingKey{"automatico", &EstadoParaWidgets::automatico},
        foundation::CodingKey{"salida", &EstadoParaWidgets::salida},
        foundation::CodingKey{"salidaMedida", &EstadoParaWidgets::salidaMedida},
        foundation::CodingKey{"cuartoAhora", &EstadoParaWidgets::cuartoAhora},
        foundation::CodingKey{"cuartoAntes", &EstadoParaWidgets::cuartoAntes},
        foundation::CodingKey{"medidoHace", &EstadoParaWidgets::medidoHace},
        foundation::CodingKey{"salidasSinMedir", &EstadoParaWidgets::salidasSinMedir},
        foundation::CodingKey{"perfiles", &EstadoParaWidgets::perfiles},
        foundation::CodingKey{"apps", &EstadoParaWidgets::apps},
        foundation::CodingKey{"dejaCambiar", &EstadoParaWidgets::dejaCambiar},
        foundation::CodingKey{"acento", &EstadoParaWidgets::acento},
        foundation::CodingKey{"idioma", &EstadoParaWidgets::idioma},
        foundation::CodingKey{"cuando", &EstadoParaWidgets::cuando},
    };

    friend bool operator==(const EstadoParaWidgets& a, const EstadoParaWidgets& b);
};

}  // namespace nurva
