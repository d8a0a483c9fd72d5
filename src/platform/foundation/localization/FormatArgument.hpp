#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace foundation {

/// A value put into a localized text: %@, %lld or %.1f.
using FormatArgument = std::variant<std::string, std::int64_t, double>;

}  // namespace foundation
