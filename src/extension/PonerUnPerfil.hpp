#pragma once

#include "platform/widgets/StaticConfiguration.hpp"

namespace nurva {

/// The profiles to choose from, and the switch of the equalizer.
struct PonerUnPerfil {
    widgets::StaticConfiguration body() const;
};

}  // namespace nurva
