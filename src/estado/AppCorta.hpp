#pragma once

#include "platform/foundation/json/CodingKey.hpp"

#include <string>
#include <tuple>

namespace nurva {

/// One application with its volume, as the host application publishes it.
struct AppCorta {
    std::string id;      ///< its identity, by which requests name it
    std::string nombre;  ///< shown
    double nivel;        ///< 0 silent to 1 full
    bool silenciada;
    bool suena;  ///< producing sound now

    static constexpr std::tuple CodingKeys{
        foundation::CodingKey{"id", &AppCorta::id},
        foundation::CodingKey{"nombre", &AppCorta::nombre},
        foundation::CodingKey{"nivel", &AppCorta::nivel},
        foundation::CodingKey{"silenciada", &AppCorta::silenciada},
        foundation::CodingKey{"suena", &AppCorta::suena},
    };

    friend bool operator==(const AppCorta& a, const AppCorta& b);
};

}  // namespace nurva
