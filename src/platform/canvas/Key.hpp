#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>

namespace canvas {

/// Writes values one after another into bytes, so that equal sequences of values make equal keys.
/// The first value names the kind of key, which fixes the types that follow; a text comes last.
class Key {
  public:
    Key() { bytes_.reserve(usualLength); }

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
    static constexpr std::size_t usualLength = 96;
    std::string bytes_;
};

}  // namespace canvas
