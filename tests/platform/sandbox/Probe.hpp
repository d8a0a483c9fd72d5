#pragma once

#include "platform/sandbox/Grounds.hpp"

#include <unistd.h>

#include <cerrno>
#include <functional>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

/// What a probe comes to outside of the sandbox, as root, so that its refusal means something: it
/// works, or it does not fail as it does inside.
enum class Outside { works, answersOtherwise };

/// An attempt to get out. It answers 0 or an error number.
struct Probe {
    std::string name;
    int refusal;
    Outside outside;
    std::function<int(const Grounds&)> attempt;

    friend std::ostream& operator<<(std::ostream& stream, const Probe& probe) {
        return stream << probe.name;
    }
};

std::vector<Probe> socketProbes();
std::vector<Probe> processProbes();
std::vector<Probe> identityProbes();
std::vector<Probe> mountProbes();
std::vector<Probe> kernelProbes();
std::vector<Probe> memoryProbes();
std::vector<Probe> readingProbes();
std::vector<Probe> writingProbes();
std::vector<Probe> metadataProbes();
std::vector<Probe> architectureProbes();

inline int errorOf(long answer) {
    return answer < 0 ? errno : 0;
}

/// An argument of a call as it stands in a register.
inline long word(const void* pointer) {
    return reinterpret_cast<long>(pointer);
}
template <typename Number>
requires(std::is_integral_v<Number> || std::is_enum_v<Number>) long word(Number number) {
    return static_cast<long>(number);
}

/// Makes a call of the system by its number, past the C library.
int call(long number, auto... arguments) {
    return errorOf(::syscall(number, word(arguments)...));
}

/// A probe that is one call.
Probe callProbe(std::string name, int refusal, Outside outside, long number, auto... arguments) {
    return {std::move(name), refusal, outside,
            [=](const Grounds&) { return call(number, arguments...); }};
}
