#include "vistas/WO.hpp"

namespace nurva {

views::Color WO::acento() {
    const auto canal = [](unsigned bits) { return ((acentoHex >> bits) & 0xFF) / 255.0; };
    return {canal(16), canal(8), canal(0)};
}

}  // namespace nurva
