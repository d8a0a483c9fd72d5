#pragma once

#include "platform/foundation/Clock.hpp"

namespace foundation {

/// The computer's clock.
class SystemClock : public Clock {
  public:
    Date now() const override;
};

}  // namespace foundation
