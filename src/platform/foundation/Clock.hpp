#pragma once

#include "platform/foundation/Date.hpp"

namespace foundation {

/// The source of the present moment, passed to whatever asks for it. Any thread; never fails.
class Clock {
  public:
    virtual ~Clock() = default;
    virtual Date now() const = 0;
};

}  // namespace foundation
