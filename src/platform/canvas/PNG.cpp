#include "platform/canvas/PNG.hpp"

#include <libdeflate.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>
#include <memory>
#include <span>
#include <stdexcept>
#include <string_view>

namespace canvas {

namespace {

using namespace std::string_view_literals;

constexpr int fastest = 1;
constexpr std::size_t bytesOfPixel = 4;
constexpr std::size_t longestChunk = std::numeric_limits<std::int32_t>::max();
constexpr std::string_view signature = "\x89PNG\r\n\x1a\n";
constexpr auto rgbaOf8BitsNotInterlaced = "\x08\x06\0\0\0"sv;
constexpr auto perceptual = "\0"sv;

struct CompressorDeleter {
    void operator()(libdeflate_compressor* compressor) const {
        libdeflate_free_compressor(compressor);
    }
};

[[noreturn]] void fail(const char* reason) {
    throw std::runtime_error(std::string("no PNG: ") + reason);
}

std::string bigEndian(std::size_t number) {
    std::string bytes;
    for (const int shift : {24, 16, 8, 0})
        bytes += static_cast<char>(number >> shift & 0xFF);
    return bytes;
}

/// Adds a chunk: the length of its contents, its type, the contents, a checksum of both.
void add(std::string& file, std::string_view type, std::string_view contents) {
    file += bigEndian(contents.size());
    const std::size_t start = file.size();
    file += type;
    file += contents;
    file += bigEndian(libdeflate_crc32(0, file.data() + start, file.size() - start));
}

std::uint32_t straight(std::uint32_t component, std::uint32_t alpha) {
    return std::min((component * 255 + alpha / 2) / alpha, 255u);
}

/// A pixel's red, green, blue and alpha, in this order from the lowest byte, its colors as they
/// are.
std::uint32_t rgba(std::uint32_t argb) {
    return (argb & 0xFF00FF00) | (argb >> 16 & 0xFF) | (argb & 0xFF) << 16;
}

std::uint32_t straightRGBA(std::uint32_t argb) {
    const std::uint32_t alpha = argb >> 24;
    return straight(argb >> 16 & 0xFF, alpha) | straight(argb >> 8 & 0xFF, alpha) << 8 |
           straight(argb & 0xFF, alpha) << 16 | alpha << 24;
}

/// The few pixels that are neither opaque nor empty have turns of their own, so that the many go
/// several at a time.
void writeRow(std::span<const std::uint32_t> argb, char* to) {
    for (std::size_t x = 0; x < argb.size(); ++x) {
        const std::uint32_t pixel = rgba(argb[x]);
        std::memcpy(to + x * bytesOfPixel, &pixel, bytesOfPixel);
    }
    for (std::size_t x = 0; x < argb.size(); ++x)
        if (const std::uint32_t alpha = argb[x] >> 24; alpha != 255 && alpha != 0) {
            const std::uint32_t pixel = straightRGBA(argb[x]);
            std::memcpy(to + x * bytesOfPixel, &pixel, bytesOfPixel);
        }
}

/// Bytes that hold nothing yet.
struct Bytes {
    explicit Bytes(std::size_t count)
        : start(std::make_unique_for_overwrite<char[]>(count)), size(count) {}

    std::unique_ptr<char[]> start;
    std::size_t size;
};

/// The rows as they are compressed, each behind the number of its filter. No filter: on flat colors
/// they make a file larger and take their time.
Bytes filtered(const Pixels& pixels) {
    constexpr char none = 0;
    const std::size_t rowSize = static_cast<std::size_t>(pixels.size.width) * bytesOfPixel + 1;
    Bytes rows(rowSize * static_cast<std::size_t>(pixels.size.height));
    char* to = rows.start.get();
    for (int y = 0; y < pixels.size.height; ++y, to += rowSize) {
        to[0] = none;
        writeRow(pixels.row(y), to + 1);
    }
    return rows;
}

Bytes compressed(const Bytes& bytes) {
    const std::unique_ptr<libdeflate_compressor, CompressorDeleter> compressor(
        libdeflate_alloc_compressor(fastest));
    if (!compressor)
        fail("out of memory");
    Bytes result(libdeflate_zlib_compress_bound(compressor.get(), bytes.size));
    result.size = libdeflate_zlib_compress(compressor.get(), bytes.start.get(), bytes.size,
                                           result.start.get(), result.size);
    return result;
}

}  // namespace

std::string encodePNG(const Pixels& pixels) {
    if (pixels.size.width <= 0 || pixels.size.height <= 0)
        fail("a picture without pixels");
    const Bytes contents = compressed(filtered(pixels));
    if (contents.size > longestChunk)
        fail("too many pixels");
    std::string file;
    file.reserve(contents.size + 100);
    file += signature;
    add(file, "IHDR",
        bigEndian(static_cast<std::size_t>(pixels.size.width)) +
            bigEndian(static_cast<std::size_t>(pixels.size.height)) +
            std::string(rgbaOf8BitsNotInterlaced));
    add(file, "sRGB", perceptual);
    add(file, "IDAT", {contents.start.get(), contents.size});
    add(file, "IEND", {});
    return file;
}

}  // namespace canvas
