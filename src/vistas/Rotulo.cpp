#include "vistas/Rotulo.hpp"

#include "platform/foundation/text/UnicodeText.hpp"
#include "platform/views/text/Text.hpp"
#include "vistas/Sistema.hpp"
#include "vistas/WO.hpp"

namespace nurva {

using namespace views;

View Rotulo::body() const {
    return Text(foundation::uppercased(texto))
        .font(sistema(9, semibold))
        .tracking(0.9)
        .foregroundStyle(WO::texto3);
}

}  // namespace nurva
