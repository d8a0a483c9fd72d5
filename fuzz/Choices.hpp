#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

/// Values chosen by the bytes of an input, so that whatever the fuzzer makes up is a valid value of
/// its type. When the bytes are used up, everything is nothing.
class Choices {
  public:
    explicit Choices(std::string_view bytes) : bytes_(bytes) {}

    bool isOver() const { return bytes_.empty(); }

    template <class Value>
    Value plain() {
        Value value{};
        const std::size_t taken = std::min(bytes_.size(), sizeof value);
        std::memcpy(&value, bytes_.data(), taken);
        bytes_.remove_prefix(taken);
        return value;
    }
    bool truth() { return plain<std::uint8_t>() % 2 == 1; }
    /// A number below the limit.
    std::size_t below(std::size_t limit) { return plain<std::uint8_t>() % limit; }
    std::string text() {
        const std::size_t length = std::min<std::size_t>(plain<std::uint8_t>(), bytes_.size());
        const std::string_view taken = bytes_.substr(0, length);
        bytes_.remove_prefix(length);
        return std::string(taken);
    }
    std::string_view rest() { return std::exchange(bytes_, {}); }

  private:
    std::string_view bytes_;
};
