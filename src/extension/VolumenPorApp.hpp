#pragma once

#include "platform/widgets/StaticConfiguration.hpp"

namespace nurva {

/// The applications with their volume.
struct VolumenPorApp {
    widgets::StaticConfiguration body() const;
};

}  // namespace nurva
