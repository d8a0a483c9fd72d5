#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Bytes of files as UTF-8 text. Any thread; never fail.
namespace foundation {

enum class ByteOrder { bigEndian, littleEndian };

/// Nothing when the bytes are no whole UTF-16 text.
std::optional<std::string> utf8FromUTF16(std::string_view bytes, ByteOrder order);

/// A text file's bytes: UTF-16 or UTF-32 when a byte-order mark says so, else UTF-8 with or without
/// one. The mark is left out. Nothing when the bytes are not valid in that encoding.
std::optional<std::string> utf8FromTextFile(std::string_view bytes);

}  // namespace foundation
