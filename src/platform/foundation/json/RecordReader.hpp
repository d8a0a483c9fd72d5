#pragma once

#include "platform/foundation/Date.hpp"
#include "platform/foundation/json/CodingKey.hpp"
#include "platform/foundation/json/JSONReader.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace foundation {

/// Reads one record from JSON in one pass. The position it gives is null where the text is not the
/// record's; why it is not, a Decoder says.
template <CodedRecord Record>
class RecordReader {
  public:
    using Position = JSONReader::Position;

    RecordReader(JSONReader& reader, Record& record) : reader_(reader), record_(record) {}

    Position read(Position at) {
        at = reader_.readObject(at, [this](Position members) {  //
            return readMembers(members, Indices{});
        });
        return (read_ | optionals(Indices{})) == bit(count) - 1 ? at : nullptr;
    }

  private:
    static constexpr std::size_t count = codingKeyCount<Record>;
    static_assert(count < 32, "the fields already read are kept in 32 bits");

    using Indices = std::make_index_sequence<count>;

    static constexpr std::uint32_t bit(std::size_t index) { return std::uint32_t{1} << index; }

    /// Reads at least the member that comes next. Writers keep the order of the fields, so as long
    /// as their keys come in turn nothing is looked up.
    template <std::size_t... I>
    Position readMembers(Position at, std::index_sequence<I...>) {
        Turn turn{.at = at, .isMember = true};
        static_cast<void>((readInTurn<I>(turn) && ...));
        return turn.isMember ? readAnyMember(turn.at) : turn.at;
    }

    struct Turn {
        Position at;
        bool isMember;  ///< whether another member comes next
    };

    /// Reads the field if its key comes next. Answers whether the field after it may be next.
    template <std::size_t I>
    bool readInTurn(Turn& turn) {
        constexpr auto& key = std::get<I>(Record::CodingKeys);
        if ((read_ & bit(I)) != 0) {
            return true;
        }
        const Position value =
            reader_.template readKeyIf<key.name.size()>(turn.at, key.name.data());
        if (value == nullptr) {
            return isOptional(key);
        }
        read_ |= bit(I);
        turn = {.at = readValue(value, record_.*key.member), .isMember = false};
        if (turn.at == nullptr) {
            return false;
        }
        if (const Position next = reader_.readComma(turn.at)) {
            turn = {.at = next, .isMember = true};
        }
        return turn.isMember;
    }

    Position readAnyMember(Position at) {
        std::string_view key;
        at = reader_.readKey(at, key);
        return at == nullptr ? nullptr : readMember(at, key, Indices{});
    }

    /// Reads the value of the first member with this key into its field; passes over others.
    template <std::size_t... I>
    Position readMember(Position at,
                        [[maybe_unused]] std::string_view key,
                        std::index_sequence<I...>) {
        const bool isField = (... || readIfField<I>(at, key));
        return isField ? at : reader_.skipValue(at);
    }

    template <std::size_t I>
    bool readIfField(Position& at, std::string_view name) {
        constexpr auto& key = std::get<I>(Record::CodingKeys);
        if (key.name != name || (read_ & bit(I)) != 0) {
            return false;
        }
        read_ |= bit(I);
        at = readValue(at, record_.*key.member);
        return true;
    }

    template <class T>
    Position readValue(Position at, T& value) {
        return reader_.read(at, value);
    }

    Position readValue(Position at, Date& value) {
        return reader_.read(at, value.secondsSinceReferenceDate);
    }

    template <CodedRecord Inner>
    Position readValue(Position at, Inner& value) {
        return RecordReader<Inner>(reader_, value).read(at);
    }

    template <class T>
    Position readValue(Position at, std::optional<T>& value) {
        if (const Position null = reader_.readNull(at)) {
            value.reset();
            return null;
        }
        return readValue(at, value.emplace());
    }

    template <class T>
    Position readValue(Position at, std::vector<T>& value) {
        value.clear();
        return reader_.readArray(at, [&](Position element) {
            if (value.capacity() == 0) {
                value.reserve(usualLength);
            }
            return readValue(element, value.emplace_back());
        });
    }

    /// A curve has 13 values.
    static constexpr std::size_t usualLength = 16;

    template <std::size_t... I>
    static constexpr std::uint32_t optionals(std::index_sequence<I...>) {
        return ((isOptional(std::get<I>(Record::CodingKeys)) ? bit(I) : 0) | ... | 0);
    }

    template <class T>
    static constexpr bool isOptional(const CodingKey<Record, T>&) {
        return false;
    }
    template <class T>
    static constexpr bool isOptional(const CodingKey<Record, std::optional<T>>&) {
        return true;
    }

    JSONReader& reader_;
    Record& record_;
    std::uint32_t read_ = 0;
};

/// Reads a whole text as one record.
template <CodedRecord Record>
bool readDocument(std::string_view text, Record& record) {
    JSONReader reader(withoutByteOrderMark(text));
    return reader.isAtEnd(RecordReader<Record>(reader, record).read(reader.begin()));
}

}  // namespace foundation
