#include "platform/foundation/json/JSONDecoder.hpp"

#include <algorithm>
#include <string>

namespace foundation {

void locateFault(std::string_view text, DecodingError& error) {
    if (error.kind != DecodingError::Kind::dataCorrupted) {
        return;
    }
    const std::string_view document = withoutByteOrderMark(text);
    JSONReader reader(document);
    if (reader.isAtEnd(reader.skipValue(reader.begin()))) {
        return;
    }
    const std::string_view before = document.substr(0, reader.lastValue());
    const auto line = std::ranges::count(before, '\n') + 1;
    const auto column = before.size() - (before.rfind('\n') + 1) + 1;
    error.debugDescription +=
        " (line " + std::to_string(line) + ", column " + std::to_string(column) + ")";
}

}  // namespace foundation
