#include "estado/EstadoParaWidgets.hpp"
#include "estado/IndependentReader.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>

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

}  // namespace

/// Decodes any bytes as a snapshot, in both ways that there are, and compares with another reader.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const foundation::JSONDecoder decoder;
    const auto estado = decoded([&] { return decoder.decode<EstadoParaWidgets>(text); });
    const auto byParts =
        decoded([&] { return foundation::decodeByParts<EstadoParaWidgets>(text); });
    require(estado.has_value() == byParts.has_value());
    const IndependentVerdict theirs = independentVerdict(text);
    if (theirs.hasOpinion) {
        require(theirs.isJSON == isJSON(text));
        require(theirs.estado.has_value() == estado.has_value());
    }
    if (estado) {
        require(isJSON(text));
        require(exactlyEqual(*estado, *byParts));
        require(!theirs.hasOpinion || exactlyEqual(*estado, *theirs.estado));
        require(decoder.decode<EstadoParaWidgets>(foundation::JSONEncoder{}.encode(*estado)) ==
                *estado);
    }
    return 0;
}
