#pragma once

#include "platform/foundation/localization/FormatArgument.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace foundation {

/// A text of this program in the user's language; the key is the Spanish text. Any thread; never
/// fails.
std::string message(std::string_view key, const std::vector<FormatArgument>& arguments = {});

}  // namespace foundation
