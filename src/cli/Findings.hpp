#pragma once

#include "platform/foundation/Environment.hpp"
#include "platform/sandbox/Confinement.hpp"

#include <string>
#include <vector>

namespace cli {

/// Something that the widgets stand on, and whether it holds.
struct Finding {
    enum class Kind { holds, lacks, note };

    Kind kind = Kind::holds;
    std::string text;
    std::string advice;  // what to do about it; empty where nothing is to be done
};

// What `nurva doctor` looks at, each in plain words of the user's language. Never fails.

std::vector<Finding> containerFindings(const foundation::Environment& environment);
std::vector<Finding> bundleFindings(const foundation::Environment& environment);
std::vector<Finding> busFindings();
std::vector<Finding> extensionFindings();
std::vector<Finding> sandboxFindings(const sandbox::Confinement& confinement);
std::vector<Finding> fontFindings();
std::vector<Finding> displayFindings();

}  // namespace cli
