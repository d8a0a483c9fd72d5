#include "estado/EstadoParaWidgets.hpp"

#include "platform/foundation/json/RecordEquality.hpp"

namespace nurva {

EstadoParaWidgets EstadoParaWidgets::porDefecto(foundation::Date ahora) {
    return {.cuando = ahora};
}

bool operator==(const EstadoParaWidgets& a, const EstadoParaWidgets& b) {
    return foundation::recordsEqual(a, b);
}

}  // namespace nurva
