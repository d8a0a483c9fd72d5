#include "platform/canvas/PNG.hpp"

#include <png.h>

#include <algorithm>
#include <csetjmp>
#include <cstddef>
#include <stdexcept>
#include <utility>
#include <vector>

namespace canvas {

namespace {

constexpr int fastest = 1;

/// Where libpng writes, and what it said when it gave up.
struct Output {
    std::string file;
    std::string failure;
};

[[noreturn]] void fail(png_structp png, png_const_charp message) {
    static_cast<Output*>(png_get_error_ptr(png))->failure = message;
    png_longjmp(png, 1);
}

void ignoreWarning(png_structp, png_const_charp) {}

void append(png_structp png, png_bytep bytes, std::size_t count) {
    bool appended = false;
    try {
        static_cast<Output*>(png_get_io_ptr(png))
            ->file.append(reinterpret_cast<const char*>(bytes), count);
        appended = true;
    } catch (const std::exception&) {
    }
    if (!appended)
        png_error(png, "out of memory");
}

void flushNothing(png_structp) {}

class Writer {
  public:
    explicit Writer(Output& output)
        : png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, &output, fail, ignoreWarning)),
          info_(png_ ? png_create_info_struct(png_) : nullptr) {
        if (info_)
            png_set_write_fn(png_, &output, append, flushNothing);
    }
    ~Writer() { png_destroy_write_struct(&png_, &info_); }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    explicit operator bool() const { return info_ != nullptr; }
    png_structp png() const { return png_; }
    png_infop info() const { return info_; }

  private:
    png_structp png_;
    png_infop info_;
};

std::uint8_t straight(std::uint32_t component, std::uint32_t alpha) {
    const std::uint32_t value = (component * 255 + alpha / 2) / alpha;
    return static_cast<std::uint8_t>(value < 255 ? value : 255);
}

void writeRow(std::span<const std::uint32_t> argb, std::uint8_t* rgba) {
    for (const std::uint32_t pixel : argb) {
        const std::uint32_t alpha = pixel >> 24;
        const std::uint32_t red = pixel >> 16 & 0xFF;
        const std::uint32_t green = pixel >> 8 & 0xFF;
        const std::uint32_t blue = pixel & 0xFF;
        if (alpha == 255 || alpha == 0) {
            rgba[0] = static_cast<std::uint8_t>(red);
            rgba[1] = static_cast<std::uint8_t>(green);
            rgba[2] = static_cast<std::uint8_t>(blue);
        } else {
            rgba[0] = straight(red, alpha);
            rgba[1] = straight(green, alpha);
            rgba[2] = straight(blue, alpha);
        }
        rgba[3] = static_cast<std::uint8_t>(alpha);
        rgba += 4;
    }
}

/// False when libpng gave up: it jumps back here over its own frames and this one, which therefore
/// holds nothing that would have to be released.
bool write(const Writer& writer, const Pixels& pixels, std::uint8_t* row) {
    png_structp png = writer.png();
    png_infop info = writer.info();
    if (setjmp(png_jmpbuf(png)))
        return false;
    png_set_compression_level(png, fastest);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_IHDR(png, info, static_cast<png_uint_32>(pixels.size.width),
                 static_cast<png_uint_32>(pixels.size.height), 8, PNG_COLOR_TYPE_RGB_ALPHA,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_sRGB(png, info, PNG_sRGB_INTENT_PERCEPTUAL);
    png_write_info(png, info);
    for (int y = 0; y < pixels.size.height; ++y) {
        writeRow(pixels.row(y), row);
        png_write_row(png, row);
    }
    png_write_end(png, info);
    return true;
}

}  // namespace

std::string encodePNG(const Pixels& pixels) {
    Output output;
    const Writer writer(output);
    if (!writer)
        throw std::runtime_error("no PNG: libpng cannot be used");
    std::vector<std::uint8_t> row(static_cast<std::size_t>(std::max(pixels.size.width, 0)) * 4);
    if (!write(writer, pixels, row.data()))
        throw std::runtime_error("no PNG: " + output.failure);
    return std::move(output.file);
}

}  // namespace canvas
