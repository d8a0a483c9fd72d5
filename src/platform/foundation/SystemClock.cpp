#include "platform/foundation/SystemClock.hpp"

#include <chrono>

namespace foundation {

Date SystemClock::now() const {
    using namespace std::chrono;
    constexpr sys_days reference = year{2001} / January / 1;
    return {duration<double>(system_clock::now() - reference).count()};
}

}  // namespace foundation
