#pragma once

#include "platform/foundation/plist/PropertyList.hpp"

#include <optional>
#include <string_view>

namespace foundation {

inline constexpr std::string_view binaryPropertyListMark = "bplist00";

/// The value in a binary property list. Its objects may refer to one another, so that a hundred
/// bytes can stand for gigabytes or go in circles: what it stands for is counted while it is read.
/// Nothing when the bytes are malformed, nest too deep or stand for too much.
std::optional<PropertyList> parseBinaryPropertyList(std::string_view bytes);

}  // namespace foundation
