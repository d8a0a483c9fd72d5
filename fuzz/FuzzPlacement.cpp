#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "widgethost/Placement.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using widgethost::Placement;

/// Reads any bytes as what is remembered of the desktop. What is accepted is the same after it was
/// written again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const foundation::JSONDecoder decoder;
    try {
        const auto placement = decoder.decode<Placement>(text);
        if (decoder.decode<Placement>(foundation::JSONEncoder().encode(placement)) != placement)
            std::abort();
    } catch (const foundation::DecodingError&) {
        return 0;
    }
    return 0;
}
