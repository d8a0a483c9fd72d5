#pragma once

#include "platform/foundation/FormatArgument.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace cli {

/// A text of the command line in the user's language; the key is the Spanish text.
std::string message(std::string_view key,
                    const std::vector<foundation::FormatArgument>& arguments = {});

}  // namespace cli
