#include "platform/views/text/LineBreaks.hpp"

#include <unicode/brkiter.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <array>
#include <memory>

namespace views {

namespace {

/// A quick look, so that most bytes of a text need no closer one.
bool mayBeginHardBreak(char byte) {
    return (byte >= '\n' && byte <= '\r') || byte == '\xC2' || byte == '\xE2';
}

/// Length in bytes of the hard break at the start of the text, 0 if there is none.
std::size_t hardBreakLength(std::string_view text) {
    constexpr std::array<std::string_view, 7> breaks{"\r\n", "\n",     "\r",    "\v",
                                                     "\f",   "\u2028", "\u2029"};
    for (const std::string_view candidate : breaks)
        if (text.starts_with(candidate))
            return candidate.size();
    constexpr std::string_view nextLine = "\u0085";
    return text.starts_with(nextLine) ? nextLine.size() : 0;
}

struct CloseText {
    void operator()(UText* text) const { utext_close(text); }
};

}  // namespace

std::vector<std::size_t> lineBreakOpportunities(std::string_view text) {
    UErrorCode status = U_ZERO_ERROR;
    // Making the iterator reads its rules, so each thread keeps one.
    thread_local const std::unique_ptr<icu::BreakIterator> iterator(
        icu::BreakIterator::createLineInstance(icu::Locale::getRoot(), status));
    std::vector<std::size_t> ends;
    const std::unique_ptr<UText, CloseText> input(
        utext_openUTF8(nullptr, text.data(), static_cast<std::int64_t>(text.size()), &status));
    if (iterator && U_SUCCESS(status)) {
        iterator->setText(input.get(), status);
        iterator->first();
        for (auto end = iterator->next(); end != icu::BreakIterator::DONE; end = iterator->next())
            ends.push_back(static_cast<std::size_t>(end));
    }
    if (ends.empty() || ends.back() != text.size())
        ends.push_back(text.size());
    return ends;
}

std::vector<std::string_view> paragraphs(std::string_view text) {
    std::vector<std::string_view> pieces;
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t length = mayBeginHardBreak(text[i]) ? hardBreakLength(text.substr(i)) : 0;
        if (length > 0) {
            pieces.push_back(text.substr(start, i - start));
            start = i + length;
        }
        i += length > 0 ? length : 1;
    }
    pieces.push_back(text.substr(start));
    return pieces;
}

std::string_view withoutTrailingSpace(std::string_view text) {
    while (!text.empty()) {
        auto start = static_cast<std::int32_t>(text.size());
        UChar32 last = 0;
        U8_PREV(reinterpret_cast<const std::uint8_t*>(text.data()), 0, start, last);
        if (last < 0 || !u_isUWhiteSpace(last))
            break;
        text = text.substr(0, static_cast<std::size_t>(start));
    }
    return text;
}

}  // namespace views
