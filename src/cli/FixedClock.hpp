#pragma once

#include "platform/foundation/Clock.hpp"

namespace cli {

/// A clock that stands still, so that a picture repeats.
class FixedClock final : public foundation::Clock {
  public:
    explicit FixedClock(foundation::Date instant) : instant_(instant) {}
    foundation::Date now() const override { return instant_; }

  private:
    foundation::Date instant_;
};

}  // namespace cli
