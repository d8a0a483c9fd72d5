#pragma once

#include <cstddef>
#include <string_view>

namespace foundation {

/// The length of the integer conversion that `text` begins with (d or i, after l, ll, q or
/// nothing), else 0.
constexpr std::size_t integerSpecifierLength(std::string_view text) {
    std::size_t length = 0;
    if (text.starts_with("ll"))
        length = 2;
    else if (text.starts_with('l') || text.starts_with('q'))
        length = 1;
    text.remove_prefix(length);
    return text.starts_with('d') || text.starts_with('i') ? length + 1 : 0;
}

}  // namespace foundation
