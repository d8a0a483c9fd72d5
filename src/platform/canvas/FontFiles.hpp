#pragma once

#include "platform/views/text/Font.hpp"

#include <optional>
#include <string>

namespace canvas {

/// The installed file of the face that stands in for the system's; nothing when there is none.
std::optional<std::string> standInFile(views::FontDesign design, views::FontWeight weight);

/// The family the stand-in's files carry.
const char* standInFamily(views::FontDesign design);

}  // namespace canvas
