#include "peticiones/Peticion.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using nurva::GrupoDeApps::Peticion;

/// Decodes any bytes as a request. One that is accepted is the same after it was written again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const foundation::JSONDecoder decoder;
    try {
        const auto request = decoder.decode<Peticion>(text);
        const std::string written = foundation::JSONEncoder().encode(request);
        if (!(decoder.decode<Peticion>(written) == request) ||
            foundation::JSONEncoder().encode(decoder.decode<Peticion>(written)) != written)
            std::abort();
    } catch (const foundation::DecodingError&) {
        return 0;
    }
    return 0;
}
