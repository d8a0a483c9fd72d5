#pragma once

#include "platform/widgets/StaticConfiguration.hpp"

namespace nurva {

/// The profile, its curve, and why it is on.
struct QueEstaPuesto {
    widgets::StaticConfiguration body() const;
};

}  // namespace nurva
