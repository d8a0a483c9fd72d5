#pragma once

#include <string>
#include <string_view>

/// Text operations that look at characters rather than bytes. Texts are UTF-8; a malformed sequence
/// counts as the replacement character. Any thread; never fail.
namespace foundation {

/// Whether two texts are the same characters, however each is composed: "é" equals "e" + accent.
bool canonicallyEqual(std::string_view a, std::string_view b);

/// The capitals of a text by the full mapping of no particular language: "straße" becomes
/// "STRASSE".
std::string uppercased(std::string_view text);

}  // namespace foundation
