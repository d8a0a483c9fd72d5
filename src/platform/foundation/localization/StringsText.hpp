#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace foundation {

/// The lines `key = value;` or `key;` of a `.strings` file in text form, given as UTF-8; of two
/// with one key the last. Nothing when anything else stands in it. Any thread; never fails
/// otherwise.
std::optional<std::map<std::string, std::string>> parseStringsText(std::string_view text);

}  // namespace foundation
