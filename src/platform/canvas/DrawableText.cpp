#include "platform/canvas/DrawableText.hpp"

#include <glib.h>

#include <algorithm>

namespace canvas {

namespace {

constexpr std::string_view replacement = "\uFFFD";

bool isLeftOut(gunichar character) {
    constexpr gunichar lineSeparator = 0x2028;
    constexpr gunichar paragraphSeparator = 0x2029;
    return g_unichar_iscntrl(character) || character == lineSeparator ||
           character == paragraphSeparator;
}

std::string_view firstPart(std::string_view text, std::size_t longest) {
    if (text.size() <= longest)
        return text;
    std::size_t end = longest;
    const std::size_t earliest = longest - std::min<std::size_t>(longest, 3);
    while (end > earliest && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return text.substr(0, end);
}

}  // namespace

DrawableText drawableText(std::string_view text, std::size_t longest) {
    const std::string_view taken = firstPart(text, longest);
    DrawableText result;
    result.utf8.reserve(taken.size());
    result.origins.reserve(taken.size() + 1);
    const auto append = [&result](std::string_view bytes, std::size_t origin) {
        result.utf8.append(bytes);
        result.origins.insert(result.origins.end(), bytes.size(), origin);
    };
    for (std::size_t at = 0; at < taken.size();) {
        const std::string_view rest = taken.substr(at);
        if (rest.front() == '\0') {
            ++at;
            continue;
        }
        const gunichar character =
            g_utf8_get_char_validated(rest.data(), static_cast<gssize>(rest.size()));
        const bool invalid = character >= static_cast<gunichar>(-2);
        const std::size_t length =
            invalid ? 1 : static_cast<std::size_t>(g_unichar_to_utf8(character, nullptr));
        if (invalid)
            append(replacement, at);
        else if (!isLeftOut(character))
            append(rest.substr(0, length), at);
        at += length;
    }
    result.origins.push_back(text.size());
    return result;
}

}  // namespace canvas
