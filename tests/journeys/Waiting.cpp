#include "journeys/Waiting.hpp"

#include <cstdlib>
#include <thread>

namespace journeys {

namespace {

bool isLong() {
    return std::getenv("NURVA_LONG") != nullptr;
}

}  // namespace

bool soon(const std::function<bool()>& condition, std::chrono::milliseconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

std::chrono::milliseconds promised(std::chrono::milliseconds time) {
    return isLong() ? time : support::patience;
}

int times(int briefly, int atLength) {
    return isLong() ? atLength : briefly;
}

}  // namespace journeys
