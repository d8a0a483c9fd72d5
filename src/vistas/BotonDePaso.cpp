#include "vistas/BotonDePaso.hpp"

#include "linea/Idioma.hpp"
#include "peticiones/PonerVolumen.hpp"
#include "platform/views/controls/Button.hpp"
#include "platform/views/controls/Image.hpp"
#include "vistas/Sistema.hpp"
#include "vistas/WO.hpp"

namespace nurva {

using namespace views;

double nivelDePaso(double nivel, bool subir) {
    const double nuevo = nivel + (subir ? 0.1 : -0.1);
    if (nuevo <= 0)
        return 0;
    return nuevo > 1 ? 1 : nuevo;
}

View BotonDePaso::body() const {
    constexpr RoundedRectangle forma{.cornerRadius = 7};
    const View etiqueta = Image::systemName(subir ? "plus" : "minus")
                              .font(sistema(9, bold))
                              .foregroundStyle(activo ? WO::texto2 : WO::texto3)
                              .frame({.width = 22, .height = 22})
                              .background(WO::control, forma)
                              .overlay(forma.strokeBorder(WO::filete, 1))
                              .opacity(activo ? 1 : 0.45);
    return Button(intents::archived(PonerVolumen(clave, nivelDePaso(nivel, subir))), etiqueta)
        .disabled(!activo)
        .accessibilityLabel(Idioma::texto(subir ? "Subir" : "Bajar"));
}

}  // namespace nurva
