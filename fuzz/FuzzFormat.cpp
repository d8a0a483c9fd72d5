#include "platform/foundation/localization/Format.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// Up to the next NUL, which is taken off as well.
std::string takeText(std::string_view& bytes) {
    const std::size_t end = std::min(bytes.find('\0'), bytes.size());
    std::string text(bytes.substr(0, end));
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
    return text;
}

}  // namespace

/// A format, the wordings of two variables and a number, all from the input. The same input gives
/// the same text, and a format without a per-cent sign is its own expansion.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view bytes(reinterpret_cast<const char*>(data), size);
    std::uint64_t bits = 0;
    const std::size_t taken = std::min(bytes.size(), sizeof bits);
    std::memcpy(&bits, bytes.data(), taken);
    bytes.remove_prefix(taken);
    double decimal = 0;
    std::memcpy(&decimal, &bits, sizeof decimal);

    foundation::LocalizedFormat format{.text = takeText(bytes)};
    for (const char* name : {"a", "b"}) {
        format.variables[name]["one"] = takeText(bytes);
        format.variables[name]["other"] = takeText(bytes);
    }
    const std::vector<foundation::FormatArgument> arguments = {static_cast<std::int64_t>(bits),
                                                               std::string("%@"), decimal};
    const foundation::Locale locale{bits % 2 == 0 ? "es_ES" : "ar_EG"};
    const auto first = foundation::expandedFormat(format, arguments, locale, "pl");
    const auto second = foundation::expandedFormat(format, arguments, locale, "pl");
    const bool plain = format.text.find('%') == std::string::npos;
    if (first != second || (plain && first != format.text))
        std::abort();
    return 0;
}
