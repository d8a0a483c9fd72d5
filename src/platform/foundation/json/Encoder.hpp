#pragma once

#include "platform/foundation/Date.hpp"
#include "platform/foundation/json/CodingKey.hpp"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace foundation {

class Encoder;

/// A type that brings its own `void encode(foundation::Encoder&, const T&)`; a record has no need
/// of one, even if it converts to a type that does.
template <class T>
concept CustomEncodable = !CodedRecord<T> && requires(Encoder & encoder, const T& value) {
    encode(encoder, value);
};

/// Writes one value as JSON, without blanks. Throws EncodingError.
class Encoder {
  public:
    template <std::same_as<bool> Bool>
    void encode(Bool value) {
        text_ += value ? "true" : "false";
    }
    void encode(std::nullptr_t) { text_ += "null"; }
    void encode(double value);
    void encode(std::int64_t value) { text_ += std::to_string(value); }
    void encode(std::uint32_t value) { text_ += std::to_string(value); }
    void encode(const std::string& value) { encodeString(value); }
    void encode(Date value) { encode(value.secondsSinceReferenceDate); }

    template <class Element>
    void encode(const std::vector<Element>& elements);

    template <CodedRecord Record>
    void encode(const Record& record);

    template <CustomEncodable T>
    void encode(const T& value);

    /// Writes an object; `encodeMembers()` writes its members with `encodeMember`.
    template <class EncodeMembers>
    void encodeObject(EncodeMembers encodeMembers);

    template <class T>
    void encodeMember(std::string_view key, const T& value);

    /// Left out where there is no value.
    template <class T>
    void encodeMember(std::string_view key, const std::optional<T>& value);

    /// What has been written.
    const std::string& text() const { return text_; }

  private:
    void encodeString(std::string_view string);

    void begin(char opening);
    void beginItem();
    void end(char closing);

    /// Runs `encodeValue()` with the path one step longer.
    template <class EncodeValue>
    void atStep(std::string_view step, EncodeValue encodeValue);

    std::string text_;
    std::string codingPath_;
    bool isFirstItem_ = true;
};

/// Outside the class, where its own members named `encode` do not hide the type's function.
template <CustomEncodable T>
void encodeCustom(Encoder& encoder, const T& value) {
    encode(encoder, value);
}

template <CustomEncodable T>
void Encoder::encode(const T& value) {
    encodeCustom(*this, value);
}

template <class Element>
void Encoder::encode(const std::vector<Element>& elements) {
    begin('[');
    for (std::size_t i = 0; i < elements.size(); ++i) {
        beginItem();
        atStep(std::to_string(i), [&] { encode(elements[i]); });
    }
    end(']');
}

template <CodedRecord Record>
void Encoder::encode(const Record& record) {
    encodeObject([&] {
        std::apply([&](const auto&... key) { (encodeMember(key.name, record.*key.member), ...); },
                   Record::CodingKeys);
    });
}

template <class EncodeMembers>
void Encoder::encodeObject(EncodeMembers encodeMembers) {
    begin('{');
    encodeMembers();
    end('}');
}

template <class T>
void Encoder::encodeMember(std::string_view key, const T& value) {
    beginItem();
    encodeString(key);
    text_ += ':';
    atStep(key, [&] { encode(value); });
}

template <class T>
void Encoder::encodeMember(std::string_view key, const std::optional<T>& value) {
    if (value) {
        encodeMember(key, *value);
    }
}

template <class EncodeValue>
void Encoder::atStep(std::string_view step, EncodeValue encodeValue) {
    const std::size_t outer = codingPath_.size();
    if (outer > 0) {
        codingPath_ += '.';
    }
    codingPath_ += step;
    encodeValue();
    codingPath_.resize(outer);
}

}  // namespace foundation
