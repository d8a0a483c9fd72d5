#include "estado/EstadoParaWidgets.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>

/// Decodes any bytes as a snapshot, in both ways that there are, and compares with another reader.
namespace {

using nurva::EstadoParaWidgets;

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

template <class Decode>
std::optional<EstadoParaWidgets> decoded(Decode decode) {
    try {
        return decode();
    } catch (const foundation::DecodingError&) {
        return std::nullopt;
    }
}

bool isJSON(std::string_view text) {
    foundation::JSONReader reader(foundation::withoutByteOrderMark(text));
    return reader.isAtEnd(reader.skipValue(reader.begin()));
}

/// The other reader takes a NUL for the end, goes as deep as the stack, and gives up on numbers
/// beyond a double: then it has no say.
std::optional<bool> secondOpinion(std::string_view text) {
    if (text.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    int depth = 0;
    int deepest = 0;
    for (const char character : text) {
        depth += (character == '[' || character == '{') - (character == ']' || character == '}');
        deepest = std::max(deepest, depth);
    }
    if (deepest > foundation::deepestJSONNesting) {
        return std::nullopt;
    }
    try {
        return !nlohmann::json::parse(text).is_discarded();
    } catch (const nlohmann::json::parse_error&) {
        return false;
    } catch (const nlohmann::json::out_of_range&) {
        return std::nullopt;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const foundation::JSONDecoder decoder;
    const auto estado = decoded([&] { return decoder.decode<EstadoParaWidgets>(text); });
    const auto byParts =
        decoded([&] { return foundation::decodeByParts<EstadoParaWidgets>(text); });
    require(estado.has_value() == byParts.has_value());
    require(secondOpinion(text).value_or(isJSON(text)) == isJSON(text));
    if (estado) {
        require(isJSON(text));
        require(*estado == *byParts);
        require(decoder.decode<EstadoParaWidgets>(foundation::JSONEncoder{}.encode(*estado)) ==
                *estado);
    }
    return 0;
}
