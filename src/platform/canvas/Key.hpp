#pragma once

#include <array>
#include <cstddef>
#include <memory_resource>
#include <string>
#include <string_view>
#include <type_traits>

namespace canvas {

/// Writes values one after another into bytes, so that equal sequences of values make equal keys.
/// The first value names the kind of key, which fixes the types that follow; a text comes last.
class Key {
  public:
    template <class Number>
    requires std::is_arithmetic_v<Number> || std::is_enum_v<Number> Key& operator<<(Number number) {
        bytes_.append(reinterpret_cast<const char*>(&number), sizeof number);
        return *this;
    }
    Key& operator<<(std::string_view text) {
        bytes_.append(text);
        return *this;
    }
    std::string_view bytes() const { return bytes_; }

  private:
    static constexpr std::size_t usualLength = 128;
    std::array<std::byte, usualLength> buffer_;
    std::pmr::monotonic_buffer_resource memory_{buffer_.data(), buffer_.size()};
    std::pmr::string bytes_{&memory_};
};

}  // namespace canvas
