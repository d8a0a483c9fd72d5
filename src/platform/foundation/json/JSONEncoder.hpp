#pragma once

#include "platform/foundation/json/Encoder.hpp"
#include "platform/foundation/json/EncodingError.hpp"

#include <string>

namespace foundation {

/// Makes compact JSON text from values: the counterpart of JSONDecoder, for the same types (a type
/// of its own brings `void encode(foundation::Encoder&, const T&)`).
///
/// Members stand in the order of the keys, absent optionals are left out, and a double is written
/// as the shortest text that reads back the same. Throws EncodingError. Any thread.
class JSONEncoder {
  public:
    template <class T>
    std::string encode(const T& value) const {
        Encoder encoder;
        encoder.encode(value);
        return encoder.text();
    }
};

}  // namespace foundation
