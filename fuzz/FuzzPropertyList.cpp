#include "platform/foundation/PropertyList.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

/// Reads any bytes as a property list, in XML or binary form. The same bytes give the same list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto list = foundation::PropertyList::parse(bytes);
    if (list) {
        list->strings("key");
        if (foundation::PropertyList::parse(bytes).has_value() != list.has_value())
            std::abort();
    }
    return 0;
}
