#pragma once

#include "platform/foundation/Clock.hpp"

#include <atomic>
#include <cstddef>
#include <initializer_list>
#include <vector>

namespace support {

/// A clock that answers with given instants one after the other, then keeps answering with the
/// last, and counts how often it was asked. Requires at least one instant.
class ManualClock : public foundation::Clock {
  public:
    ManualClock(std::initializer_list<foundation::Date> instants) : instants_(instants) {}

    foundation::Date now() const override {
        const std::size_t turn = reads_++;
        return turn < instants_.size() ? instants_[turn] : instants_.back();
    }

    std::size_t reads() const { return reads_; }

  private:
    std::vector<foundation::Date> instants_;
    mutable std::atomic<std::size_t> reads_ = 0;
};

}  // namespace support
