#pragma once

#include "platform/foundation/json/CodingKey.hpp"

#include <string>
#include <tuple>
#include <vector>

namespace nurva {

/// One profile of the equalizer, as the host application offers it.
struct PerfilCorto {
    std::string id;             ///< its identity, by which requests name it
    std::string nombre;         ///< shown
    std::vector<double> curva;  ///< gains in decibels, one per band
    bool puesto;                ///< the one applied now

    static constexpr std::tuple CodingKeys{
        foundation::CodingKey{"id", &PerfilCorto::id},
        foundation::CodingKey{"nombre", &PerfilCorto::nombre},
        foundation::CodingKey{"curva", &PerfilCorto::curva},
        foundation::CodingKey{"puesto", &PerfilCorto::puesto},
    };

    friend bool operator==(const PerfilCorto& a, const PerfilCorto& b);
};

}  // namespace nurva
