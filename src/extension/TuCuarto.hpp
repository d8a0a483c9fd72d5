#pragma once

#include "platform/widgets/StaticConfiguration.hpp"

namespace nurva {

/// How far the room is corrected, and what is left to measure.
struct TuCuarto {
    widgets::StaticConfiguration body() const;
};

}  // namespace nurva
