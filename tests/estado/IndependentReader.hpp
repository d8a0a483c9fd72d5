#pragma once

#include "estado/EstadoParaWidgets.hpp"

#include <optional>
#include <string_view>

/// What another JSON library, with the rules of a snapshot written out by hand, makes of a text: a
/// second opinion that shares no code with the decoder.
struct IndependentVerdict {
    bool hasOpinion = true;  ///< not where the library gives up on a number beyond a double
    bool isJSON = false;
    std::optional<nurva::EstadoParaWidgets> estado;  ///< if the text is a snapshot
};

IndependentVerdict independentVerdict(std::string_view text);

/// Whether all values are the same to the last byte.
bool exactlyEqual(const nurva::EstadoParaWidgets& a, const nurva::EstadoParaWidgets& b);
