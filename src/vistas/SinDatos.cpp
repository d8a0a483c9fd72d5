#include "vistas/SinDatos.hpp"

#include "linea/Idioma.hpp"
#include "platform/views/stacks/Spacer.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "platform/views/text/Text.hpp"
#include "vistas/Sistema.hpp"
#include "vistas/WO.hpp"

namespace nurva {

using namespace views;

View SinDatos::body() const {
    const auto mensaje = cerrado ? "Nurva está cerrado. Ábrelo y este widget se pone al día."
                                 : "Abre Nurva una vez y este widget se llena.";
    return VStack{.alignment = leading, .spacing = 6}({
        Text::localized("Nurva").font(sistema(11, semibold)).foregroundStyle(WO::texto3),
        Text(Idioma::texto(mensaje))
            .font(sistema(12))
            .foregroundStyle(WO::texto2)
            .fixedSize({.horizontal = false, .vertical = true}),
        Spacer{.minLength = 0},
    });
}

}  // namespace nurva
