#pragma once

#include "platform/foundation/bundle/Bundle.hpp"
#include "platform/foundation/localization/FormatArgument.hpp"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

/// The language of the widgets' texts, which the host application's user may choose apart from the
/// system's. One value for the process: each view build sets it before it looks up a text, and view
/// builds take turns.
namespace nurva::Idioma {

/// The bundle whose texts are shown; the main bundle until a language is chosen.
const foundation::Bundle& paquete();

/// Chooses the bundle of a language by the exact name of its folder in the main bundle; without a
/// code, or a folder of that name, the main bundle.
void fijar(const std::optional<std::string>& idioma);

/// The text for a key in the chosen bundle, with its arguments in the current locale's form.
std::string texto(std::string_view clave,
                  std::initializer_list<foundation::FormatArgument> argumentos = {});

}  // namespace nurva::Idioma
