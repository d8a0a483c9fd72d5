#pragma once

#include <charconv>
#include <stdexcept>
#include <string>
#include <string_view>

namespace support {

/// The bytes written as pairs of hexadecimal digits.
inline std::string bytesFromHex(std::string_view digits) {
    std::string bytes;
    for (std::size_t at = 0; at < digits.size(); at += 2) {
        unsigned value = 0;
        const char* pair = digits.data() + at;
        const auto end = std::from_chars(pair, pair + 2, value, 16);
        if (end.ptr != pair + 2)
            throw std::invalid_argument("no hexadecimal digits: " + std::string(digits));
        bytes += static_cast<char>(value);
    }
    return bytes;
}

}  // namespace support
