#include "journeys/Waiting.hpp"

#include <cstdlib>
#include <thread>

namespace journeys {

bool soon(const std::function<bool()>& condition, std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

int times(int briefly, int atLength) {
    return std::getenv("NURVA_LONG") ? atLength : briefly;
}

}  // namespace journeys
