#include "extension/NurvaWidgets.hpp"

#include "extension/PonerUnPerfil.hpp"
#include "extension/QueEstaPuesto.hpp"
#include "extension/TuCuarto.hpp"
#include "extension/VolumenPorApp.hpp"

namespace nurva {

widgets::WidgetBundle NurvaWidgets() {
    return {
        QueEstaPuesto{}.body(),
        PonerUnPerfil{}.body(),
        TuCuarto{}.body(),
        VolumenPorApp{}.body(),
    };
}

}  // namespace nurva
