#include "platform/foundation/text/UnicodeText.hpp"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <stdexcept>

namespace foundation {
namespace {

bool isASCII(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void require(UErrorCode code) {
    if (U_FAILURE(code))
        throw std::runtime_error(u_errorName(code));
}

icu::UnicodeString decomposed(std::string_view text) {
    UErrorCode code = U_ZERO_ERROR;
    const icu::Normalizer2* form = icu::Normalizer2::getNFDInstance(code);
    require(code);
    const auto length = static_cast<std::int32_t>(text.size());
    auto result = form->normalize(icu::UnicodeString::fromUTF8({text.data(), length}), code);
    require(code);
    return result;
}

}  // namespace

bool canonicallyEqual(std::string_view a, std::string_view b) {
    if (a == b)
        return true;
    if (isASCII(a) && isASCII(b))
        return false;
    return decomposed(a) == decomposed(b);
}

std::string uppercased(std::string_view text) {
    std::string result;
    if (isASCII(text)) {
        result.resize(text.size());
        std::transform(text.begin(), text.end(), result.begin(), [](char c) {
            return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
        });
        return result;
    }
    UErrorCode code = U_ZERO_ERROR;
    icu::StringByteSink<std::string> sink(&result);
    const auto length = static_cast<std::int32_t>(text.size());
    icu::CaseMap::utf8ToUpper("", 0, {text.data(), length}, sink, nullptr, code);
    require(code);
    return result;
}

}  // namespace foundation
