#include "platform/foundation/plist/BinaryPropertyList.hpp"

#include "platform/foundation/plist/PropertyListLimits.hpp"
#include "platform/foundation/text/TextEncoding.hpp"
#include "platform/foundation/text/UTF8.hpp"

#include <bit>
#include <cstdint>
#include <utility>

namespace foundation {
namespace {

struct Malformed {};

void require(bool condition) {
    if (!condition)
        throw Malformed{};
}

/// The table of objects, as the last 32 bytes describe it, and the reading of objects from it.
class Reader {
  public:
    explicit Reader(std::string_view bytes) {
        constexpr std::size_t trailerSize = 32;
        require(bytes.size() >= binaryPropertyListMark.size() + trailerSize);
        const std::size_t trailer = bytes.size() - trailerSize;
        offsetSize_ = number(bytes, trailer + 6, 1);
        referenceSize_ = number(bytes, trailer + 7, 1);
        objectCount_ = number(bytes, trailer + 8, 8);
        top_ = number(bytes, trailer + 16, 8);
        const std::uint64_t offsets = number(bytes, trailer + 24, 8);
        require(offsetSize_ >= 1 && offsetSize_ <= 8 && referenceSize_ >= 1 && referenceSize_ <= 8);
        require(offsets <= trailer && objectCount_ <= (trailer - offsets) / offsetSize_);
        objects_ = bytes.substr(0, offsets);
        offsets_ = bytes.substr(offsets, trailer - offsets);
    }

    std::optional<PropertyList> top() { return object(top_, 0); }

  private:
    /// An object's kind, in the high half of its first byte, and where its contents lie.
    struct Header {
        unsigned kind;
        unsigned detail;
        std::size_t start;
    };

    static std::string_view part(std::string_view bytes, std::size_t start, std::size_t size) {
        require(start <= bytes.size() && size <= bytes.size() - start);
        return bytes.substr(start, size);
    }

    static std::uint64_t number(std::string_view bytes, std::size_t start, std::size_t size) {
        std::uint64_t value = 0;
        for (const char byte : part(bytes, start, size))
            value = (value << 8) | static_cast<unsigned char>(byte);
        return value;
    }

    std::string_view contents(std::size_t start, std::size_t size) {
        spend(size);
        return part(objects_, start, size);
    }

    void spend(std::size_t bytes) {
        require(bytes <= allowance_);
        allowance_ -= bytes;
    }

    Header header(std::uint64_t index) const {
        require(index < objectCount_);
        const std::uint64_t start = number(offsets_, index * offsetSize_, offsetSize_);
        const auto first = static_cast<unsigned>(number(objects_, start, 1));
        return {first >> 4, first & 0xF, start + 1};
    }

    /// The number of elements: in the first byte, or, from fifteen on, in an integer behind it.
    std::size_t count(Header& header) const {
        if (header.detail < 0xF)
            return header.detail;
        const auto marker = static_cast<unsigned>(number(objects_, header.start, 1));
        require((marker >> 4) == 1 && (marker & 0xF) <= 3);
        const std::size_t size = std::size_t{1} << (marker & 0xF);
        const std::uint64_t count = number(objects_, header.start + 1, size);
        header.start += 1 + size;
        require(count <= objects_.size());
        return count;
    }

    std::uint64_t reference(const Header& header, std::size_t position) const {
        return number(objects_, header.start + position * referenceSize_, referenceSize_);
    }

    std::optional<PropertyList> object(std::uint64_t index, int depth) {
        require(depth <= PropertyListLimits::depth);
        spend(sizeof(PropertyList));
        Header header = this->header(index);
        switch (header.kind) {
            case 0x0:
                if (header.detail == 8 || header.detail == 9)
                    return PropertyList{header.detail == 9};
                return std::nullopt;
            case 0x1:
                return integer(header);
            case 0x2:
                return real(header);
            case 0x5:
            case 0x6:
                return PropertyList{string(header)};
            case 0xA:
                return PropertyList{array(header, depth)};
            case 0xD:
                return PropertyList{dictionary(header, depth)};
            default:
                return std::nullopt;
        }
    }

    std::optional<PropertyList> integer(const Header& header) const {
        if (header.detail > 3)
            return std::nullopt;
        return PropertyList{static_cast<std::int64_t>(
            number(objects_, header.start, std::size_t{1} << header.detail))};
    }

    std::optional<PropertyList> real(const Header& header) const {
        if (header.detail == 2) {
            const auto bits = static_cast<std::uint32_t>(number(objects_, header.start, 4));
            return PropertyList{static_cast<double>(std::bit_cast<float>(bits))};
        }
        require(header.detail == 3);
        return PropertyList{std::bit_cast<double>(number(objects_, header.start, 8))};
    }

    std::string string(Header header) {
        const std::size_t length = count(header);
        if (header.kind == 0x5) {
            const std::string_view text = contents(header.start, length);
            require(isUTF8(text));
            return std::string(text);
        }
        const auto text = utf8FromUTF16(contents(header.start, 2 * length), ByteOrder::bigEndian);
        require(text.has_value());
        return *text;
    }

    PropertyList::Array array(Header header, int depth) {
        PropertyList::Array elements;
        const std::size_t length = count(header);
        for (std::size_t i = 0; i < length; ++i) {
            if (auto element = object(reference(header, i), depth + 1))
                elements.push_back(std::move(*element));
        }
        return elements;
    }

    PropertyList::Dictionary dictionary(Header header, int depth) {
        PropertyList::Dictionary entries;
        const std::size_t length = count(header);
        for (std::size_t i = 0; i < length; ++i) {
            const Header key = this->header(reference(header, i));
            require(key.kind == 0x5 || key.kind == 0x6);
            if (auto value = object(reference(header, length + i), depth + 1))
                entries.insert_or_assign(string(key), std::move(*value));
        }
        return entries;
    }

    std::string_view objects_;
    std::string_view offsets_;
    std::size_t offsetSize_;
    std::size_t referenceSize_;
    std::uint64_t objectCount_;
    std::uint64_t top_;
    std::size_t allowance_ = PropertyListLimits::expandedBytes;
};

}  // namespace

std::optional<PropertyList> parseBinaryPropertyList(std::string_view bytes) {
    try {
        return Reader(bytes).top();
    } catch (const Malformed&) {
        return std::nullopt;
    }
}

}  // namespace foundation
