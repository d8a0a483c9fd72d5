#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace foundation {

/// The plural category ("one", "few", "other"...) of a whole number in a language; "other" in a
/// language without rules. A number beyond 2^53 counts as its nearest double. Any thread; never
/// fails.
std::string pluralCategory(std::int64_t number, std::string_view language);

}  // namespace foundation
