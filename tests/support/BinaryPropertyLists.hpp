#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace support {

/// A binary property list of the given objects, each as its bytes with references of one byte.
inline std::string binaryList(const std::vector<std::string>& objects, std::uint64_t top = 0) {
    std::string bytes = "bplist00";
    std::string offsets;
    for (const std::string& object : objects) {
        offsets += static_cast<char>(bytes.size() >> 8);
        offsets += static_cast<char>(bytes.size() & 0xFF);
        bytes += object;
    }
    const auto number = [](std::uint64_t value) {
        std::string text;
        for (int shift = 56; shift >= 0; shift -= 8)
            text += static_cast<char>((value >> shift) & 0xFF);
        return text;
    };
    const std::uint64_t table = bytes.size();
    return bytes + offsets + std::string(6, '\0') + "\x02\x01" + number(objects.size()) +
           number(top) + number(table);
}

}  // namespace support
