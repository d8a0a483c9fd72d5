#pragma once

#include "platform/foundation/json/ShortNumber.hpp"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace foundation {

/// Objects and arrays may stand inside one another this often.
constexpr int deepestJSONNesting = 512;

/// The text without the byte-order mark that may stand before it.
std::string_view withoutByteOrderMark(std::string_view text);

/// Reads strict JSON from front to back, each value straight into its place.
///
/// Every function takes the position where something is to be read and gives the one after it: null
/// where the text is malformed or something else stands there, which ends the reading. Handing the
/// position on, rather than keeping it here, lets it stay in a register. The text must outlive the
/// reader.
class JSONReader {
  public:
    using Position = const char*;

    explicit JSONReader(std::string_view text)
        : begin_(text.data()), end_(begin_ + text.size()), lastValue_(begin_) {}

    Position begin() const { return begin_; }

    Position read(Position at, bool& value) const {
        at = passBlanks(at);
        const Position end = takeWord(at, "true");
        value = end != nullptr;
        return value ? end : takeWord(at, "false");
    }
    Position read(Position at, double& value) const;
    Position read(Position at, std::int64_t& value) const { return readInteger(at, value); }
    Position read(Position at, std::uint32_t& value) const { return readInteger(at, value); }
    Position read(Position at, std::string& value) const;
    Position readNull(Position at) const { return takeWord(passBlanks(at), "null"); }

    /// Calls `readMembers(position)` until all members are read. Each time it reads one or more:
    /// the key with `readKey` or `readKeyIf`, then the value, and `readComma` before another.
    template <class ReadMembers>
    Position readObject(Position at, ReadMembers readMembers) {
        return readContainer(at, '{', '}', readMembers);
    }

    /// Calls `readElement(position)` for each element.
    template <class ReadElement>
    Position readArray(Position at, ReadElement readElement) {
        return readContainer(at, '[', ']', readElement);
    }

    /// A key of this size and its colon, if they stand here without escapes and blanks, as writers
    /// write them.
    template <std::size_t Size>
    Position readKeyIf(Position at, const char* key) const;

    /// Any key and its colon. The key is without escapes, and valid until the next one is read.
    Position readKey(Position at, std::string_view& key);

    /// The comma before another member.
    Position readComma(Position at) const { return take(at, ','); }

    /// Passes over one value of any kind, checking all of it.
    Position skipValue(Position at);

    /// Whether nothing but blanks is left. Never at null.
    bool isAtEnd(Position at) const { return at != nullptr && passBlanks(at) == end_; }

    /// Where the last value passed over begins, in bytes: after a fault, about where it is.
    std::size_t lastValue() const { return static_cast<std::size_t>(lastValue_ - begin_); }

  private:
    template <class ReadItems>
    Position readContainer(Position at, char opening, char closing, ReadItems readItems);

    template <class Integer>
    Position readInteger(Position at, Integer& value) const;

    Position readLongNumber(Position at, double& value) const;
    Position readString(Position at, std::string_view& text, bool& hasEscapes) const;

    template <std::size_t Size>
    Position takeWord(Position at, const char (&word)[Size]) const {
        constexpr std::size_t length = Size - 1;
        return remaining(at) >= length && std::memcmp(at, word, length) == 0 ? at + length
                                                                             : nullptr;
    }

    Position passBlanks(Position at) const {
        // Nearly always there are none.
        while (at != end_ && *at <= ' ' &&
               (*at == ' ' || *at == '\n' || *at == '\r' || *at == '\t')) {
            ++at;
        }
        return at;
    }

    /// This character, after blanks.
    Position take(Position at, char character) const {
        at = passBlanks(at);
        return at != end_ && *at == character ? at + 1 : nullptr;
    }

    std::size_t remaining(Position at) const { return static_cast<std::size_t>(end_ - at); }

    Position begin_;
    Position end_;
    Position lastValue_;
    int depth_ = 0;
    std::string unescapedKey_;
};

template <class ReadItems>
inline JSONReader::Position JSONReader::readContainer(Position at,
                                                      char opening,
                                                      char closing,
                                                      ReadItems readItems) {
    at = take(at, opening);
    if (at == nullptr || ++depth_ > deepestJSONNesting) {
        return nullptr;
    }
    if (const Position empty = take(at, closing)) {
        --depth_;
        return empty;
    }
    Position next = at;
    do {
        at = readItems(next);
        if (at == nullptr) {
            return nullptr;
        }
        next = take(at, ',');
    } while (next != nullptr);
    --depth_;
    return take(at, closing);
}

[[gnu::always_inline]] inline JSONReader::Position JSONReader::read(Position at,
                                                                    double& value) const {
    at = passBlanks(at);
    const ShortNumber number = readShortNumber(at, end_);
    if (number.end == nullptr) {
        return readLongNumber(at, value);
    }
    value = nearestDouble(number);
    return number.end;
}

template <std::size_t Size>
inline JSONReader::Position JSONReader::readKeyIf(Position at, const char* key) const {
    at = passBlanks(at);
    if (remaining(at) < Size + 3 || at[0] != '"' || std::memcmp(at + 1, key, Size) != 0 ||
        at[Size + 1] != '"' || at[Size + 2] != ':') {
        return nullptr;
    }
    return at + Size + 3;
}

}  // namespace foundation
