#pragma once

#include "platform/foundation/plist/PropertyList.hpp"

#include <optional>
#include <string_view>

namespace foundation {

/// The value in a property list in XML, given as UTF-8. Nothing when the text is malformed, nests
/// too deep or holds too many containers.
std::optional<PropertyList> parseXMLPropertyList(std::string_view text);

}  // namespace foundation
