#pragma once

#include "platform/foundation/Date.hpp"
#include "platform/foundation/json/CodingKey.hpp"
#include "platform/foundation/json/JSONDocument.hpp"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace foundation {

class Decoder;
class KeyedDecodingContainer;

/// A type that brings its own `void decode(const foundation::Decoder&, T&)`.
template <class T>
concept CustomDecodable = requires(const Decoder& decoder, T& value) {
    decode(decoder, value);
};

/// One value of a JSON text, with the path that leads to it, ready to be taken as a type.
///
/// Everything throws DecodingError. The text must outlive the decoder.
class Decoder {
  public:
    Decoder(JSONValue value, std::string codingPath);

    void decode(bool& value) const;
    void decode(double& value) const;
    void decode(std::int64_t& value) const;
    void decode(std::uint32_t& value) const;
    void decode(std::string& value) const;
    void decode(Date& value) const;

    template <class Element>
    void decode(std::vector<Element>& value) const;

    template <CodedRecord Record>
    void decode(Record& record) const;

    template <CustomDecodable T>
    void decode(T& value) const;

    /// The value as an object.
    KeyedDecodingContainer container() const;

    /// A value inside this one, under a key or an index.
    Decoder child(std::string_view step, JSONValue value) const;

    bool isNull() const { return value_.kind == JSONValue::Kind::null; }
    const std::string& codingPath() const { return codingPath_; }

  private:
    void forEachElement(const std::function<void(const Decoder&)>& visit) const;

    template <class Number>
    void decodeNumber(Number& number, std::string_view type) const;

    void require(JSONValue::Kind kind, std::string_view type) const;
    void requireValue(std::string_view wanted) const;

    JSONValue value_;
    std::string codingPath_;
};

/// The members of one JSON object, to be decoded by key. Of members with the same key the first
/// counts. Everything throws DecodingError.
class KeyedDecodingContainer {
  public:
    KeyedDecodingContainer(Decoder object, std::vector<JSONMember> members);

    bool contains(std::string_view key) const;

    /// The place in `keys` of the only one of them that is here; keys not among them are ignored.
    /// For tagged unions: none or several are a type mismatch.
    std::size_t soleKey(std::span<const std::string_view> keys) const;

    template <class T>
    void decode(std::string_view key, T& value) const {
        require(key).decode(value);
    }

    /// Empty where the key is missing or null.
    template <class T>
    void decode(std::string_view key, std::optional<T>& value) const {
        const std::optional<Decoder> decoder = find(key);
        value.reset();
        if (decoder && !decoder->isNull()) {
            decoder->decode(value.emplace());
        }
    }

  private:
    std::optional<Decoder> find(std::string_view key) const;
    Decoder require(std::string_view key) const;

    Decoder object_;
    std::vector<JSONMember> members_;
};

/// Outside the class, where its own members named `decode` do not hide the type's function.
template <CustomDecodable T>
void decodeCustom(const Decoder& decoder, T& value) {
    decode(decoder, value);
}

template <CustomDecodable T>
void Decoder::decode(T& value) const {
    decodeCustom(*this, value);
}

template <class Element>
void Decoder::decode(std::vector<Element>& value) const {
    value.clear();
    forEachElement([&](const Decoder& element) { element.decode(value.emplace_back()); });
}

template <CodedRecord Record>
void Decoder::decode(Record& record) const {
    const KeyedDecodingContainer members = container();
    std::apply([&](const auto&... key) { (members.decode(key.name, record.*key.member), ...); },
               Record::CodingKeys);
}

}  // namespace foundation
