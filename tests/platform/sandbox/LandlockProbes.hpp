#pragma once

#include "platform/sandbox/Grounds.hpp"

#include <functional>
#include <string>
#include <vector>

/// An attempt that versions of Landlock from some on refuse, without the filter of calls.
struct LandlockProbe {
    std::string name;
    int firstVersion;
    int before;  ///< what it comes to in older versions
    int refusal;
    std::function<int(const Grounds&)> attempt;
};

std::vector<LandlockProbe> landlockProbes();

/// A device that may be read, and the abstract socket on which the parent listens.
inline const std::filesystem::path device = "/dev/zero";
std::string abstractName(int parent);
