#pragma once

#include <string>
#include <string_view>

namespace foundation {

/// Where the inside of a JSON string ends, and how it is to be taken.
struct JSONStringText {
    const char*
        end;  ///< the next quote, or the end of the text; null where the string is malformed
    bool hasEscapes;
};

/// Reads on to the quote that closes the string whose inside begins at `begin`, and checks that it
/// is UTF-8 without bare control characters and that its escapes are complete.
JSONStringText readStringText(const char* begin, const char* end);

/// The string itself. Requires text that `readStringText` has accepted.
void appendUnescaped(std::string& string, std::string_view text);

/// The string whose inside is the whole of `text`. A false answer: it is malformed.
bool readWholeString(std::string_view text, std::string& string);

}  // namespace foundation
