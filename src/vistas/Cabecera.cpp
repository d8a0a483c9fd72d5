#include "vistas/Cabecera.hpp"

#include "platform/views/stacks/Spacer.hpp"
#include "platform/views/stacks/Stacks.hpp"
#include "vistas/Rotulo.hpp"

namespace nurva {

using namespace views;

View Cabecera::body() const {
    return HStack{.spacing = 5}({
        Rotulo{.texto = rotulo},
        Spacer{.minLength = 0},
        alFinal,
    });
}

}  // namespace nurva
