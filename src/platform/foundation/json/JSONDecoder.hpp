#pragma once

#include "platform/foundation/json/CodingKey.hpp"
#include "platform/foundation/json/Decoder.hpp"
#include "platform/foundation/json/DecodingError.hpp"
#include "platform/foundation/json/JSONDocument.hpp"
#include "platform/foundation/json/RecordReader.hpp"

#include <cstddef>
#include <span>
#include <string_view>

namespace foundation {

/// Makes values from JSON text.
///
/// The text is strict JSON in UTF-8, also where nobody reads it, with at most one byte-order mark
/// before it and at most 512 levels deep. Of members with the same key the first counts; members
/// without a field are ignored.
///
/// What can be decoded: bool, double, std::int64_t, std::uint32_t, std::string, Date (seconds since
/// the reference date), records that list their CodingKeys, std::vector of all these, and types
/// that bring a function `void decode(const foundation::Decoder&, T&)`.
///
/// Throws DecodingError: the fault that is met first when the fields are read in the order of their
/// keys. Any thread.
class JSONDecoder {
  public:
    template <class T>
    T decode(std::string_view text) const;

    template <class T>
    T decode(std::span<const std::byte> data) const {
        return decode<T>(std::string_view(reinterpret_cast<const char*>(data.data()), data.size()));
    }
};

/// Adds the line and column of the first fault, if the text is malformed and the error says so.
void locateFault(std::string_view text, DecodingError& error);

/// Takes the text apart value by value: slower than reading it in one pass, but it knows where it
/// is when it meets a fault.
template <class T>
T decodeByParts(std::string_view text) {
    try {
        const JSONDocument document(text);
        T value{};
        Decoder(document.root(), "").decode(value);
        document.requireWellFormed();
        return value;
    } catch (DecodingError& error) {
        locateFault(text, error);
        throw;
    }
}

template <class T>
T JSONDecoder::decode(std::string_view text) const {
    if constexpr (CodedRecord<T>) {
        T record{};
        if (readDocument(text, record)) {
            return record;
        }
    }
    return decodeByParts<T>(text);
}

}  // namespace foundation
