#include "linea/Idioma.hpp"

#include "platform/foundation/localization/LocalizedString.hpp"
#include "platform/views/view/BuildEnvironment.hpp"

namespace nurva {

namespace {

foundation::Bundle& actual() {
    static foundation::Bundle paquete = views::buildEnvironment().mainBundle;
    return paquete;
}

}  // namespace

const foundation::Bundle& Idioma::paquete() {
    return actual();
}

void Idioma::fijar(const std::optional<std::string>& idioma) {
    const foundation::Bundle& principal = views::buildEnvironment().mainBundle;
    if (idioma) {
        if (const auto elegido = principal.localization(*idioma)) {
            actual() = *elegido;
            return;
        }
    }
    actual() = principal;
}

std::string Idioma::texto(std::string_view clave,
                          std::initializer_list<foundation::FormatArgument> argumentos) {
    return foundation::localizedString(clave, paquete(), views::buildEnvironment().locale,
                                       argumentos);
}

}  // namespace nurva
