#include "platform/canvas/Blend.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace canvas {

namespace {

// Most coverage is none or full over long stretches of pixels.
constexpr std::size_t stretch = 16;
using StretchWords = std::array<std::uint64_t, stretch / 8>;
constexpr StretchWords uncovered{};
constexpr StretchWords covered{~0ULL, ~0ULL};

StretchWords stretchAt(const std::uint8_t* coverage) {
    StretchWords words{};
    std::memcpy(&words, coverage, stretch);
    return words;
}

constexpr std::size_t channels = 4;
constexpr std::size_t stretchBytes = stretch * channels;
using ChannelBytes = std::array<std::uint8_t, stretchBytes>;

ChannelBytes repeated(std::uint32_t color) {
    ChannelBytes bytes{};
    for (std::size_t i = 0; i < stretchBytes; i += channels)
        std::memcpy(&bytes[i], &color, channels);
    return bytes;
}

/// The product of two parts of 255, rounded. The high half of a product is one instruction of
/// vectors.
constexpr std::uint16_t times(std::uint16_t a, std::uint16_t b) {
    const std::uint32_t rounded = static_cast<std::uint16_t>(a * b + 128);
    return static_cast<std::uint16_t>(rounded * 257 >> 16);
}

/// The coverage of each pixel, once for every channel.
ChannelBytes forEachChannel(const std::uint8_t* coverage) {
    std::array<std::uint16_t, stretch> pairs{};
    for (std::size_t i = 0; i < stretch; ++i)
        pairs[i] = static_cast<std::uint16_t>(coverage[i] << 8 | coverage[i]);
    std::array<std::uint32_t, stretch> fours{};
    for (std::size_t i = 0; i < stretch; ++i)
        fours[i] = static_cast<std::uint32_t>(pairs[i]) << 16 | pairs[i];
    return std::bit_cast<ChannelBytes>(fours);
}

/// A colour that is laid over stretches of pixels, channel by channel in 16-bit numbers, which the
/// compiler makes vectors of.
class Brush {
  public:
    explicit Brush(std::uint32_t color)
        : color_(repeated(color)), alpha_(static_cast<std::uint16_t>(color >> 24)) {}

    void paint(std::uint32_t* pixels, const std::uint8_t* coverage) const {
        const StretchWords words = stretchAt(coverage);
        if (words == uncovered)
            return;
        if (words != covered)
            paintPartly(pixels, forEachChannel(coverage));
        else if (alpha_ == 255)
            std::memcpy(pixels, color_.data(), stretchBytes);
        else
            paintWholly(pixels);
    }

  private:
    void paintPartly(std::uint32_t* pixels, const ChannelBytes& parts) const {
        ChannelBytes bytes{};
        std::memcpy(bytes.data(), pixels, stretchBytes);
        if (alpha_ == 255) {
            for (std::size_t k = 0; k < stretchBytes; ++k)
                bytes[k] = mixed(times(color_[k], parts[k]), bytes[k], parts[k]);
        } else {
            for (std::size_t k = 0; k < stretchBytes; ++k)
                bytes[k] = mixed(times(color_[k], parts[k]), bytes[k], times(alpha_, parts[k]));
        }
        std::memcpy(pixels, bytes.data(), stretchBytes);
    }

    void paintWholly(std::uint32_t* pixels) const {
        ChannelBytes bytes{};
        std::memcpy(bytes.data(), pixels, stretchBytes);
        for (std::size_t k = 0; k < stretchBytes; ++k)
            bytes[k] = mixed(color_[k], bytes[k], alpha_);
        std::memcpy(pixels, bytes.data(), stretchBytes);
    }

    static std::uint8_t mixed(std::uint16_t above, std::uint16_t below, std::uint16_t cover) {
        return static_cast<std::uint8_t>(above +
                                         times(below, static_cast<std::uint16_t>(255 - cover)));
    }

    ChannelBytes color_;
    std::uint16_t alpha_;
};

void keepStretch(std::uint32_t* pixels, const std::uint8_t* coverage) {
    const StretchWords words = stretchAt(coverage);
    if (words == covered)
        return;
    if (words == uncovered) {
        std::fill_n(pixels, stretch, 0);
        return;
    }
    const ChannelBytes parts = forEachChannel(coverage);
    ChannelBytes bytes{};
    std::memcpy(bytes.data(), pixels, stretchBytes);
    for (std::size_t k = 0; k < stretchBytes; ++k)
        bytes[k] = static_cast<std::uint8_t>(times(bytes[k], parts[k]));
    std::memcpy(pixels, bytes.data(), stretchBytes);
}

}  // namespace

void blendColor(std::uint32_t* pixels,
                const std::uint8_t* coverage,
                std::size_t count,
                std::uint32_t color) {
    const Brush brush(color);
    std::size_t i = 0;
    for (; i + stretch <= count; i += stretch)
        brush.paint(pixels + i, coverage + i);
    if (i == count)
        return;
    std::array<std::uint32_t, stretch> lastPixels{};
    std::array<std::uint8_t, stretch> lastCoverage{};
    std::copy(pixels + i, pixels + count, lastPixels.begin());
    std::copy(coverage + i, coverage + count, lastCoverage.begin());
    brush.paint(lastPixels.data(), lastCoverage.data());
    std::copy_n(lastPixels.begin(), count - i, pixels + i);
}

void blendPixels(std::uint32_t* pixels,
                 const std::uint32_t* above,
                 std::size_t count,
                 std::uint32_t part) {
    for (std::size_t i = 0; i < count; ++i)
        pixels[i] = over(faded(above[i], part), pixels[i]);
}

void keepCovered(std::uint32_t* pixels, const std::uint8_t* coverage, std::size_t count) {
    std::size_t i = 0;
    for (; i + stretch <= count; i += stretch)
        keepStretch(pixels + i, coverage + i);
    for (; i < count; ++i) {
        if (coverage[i] != 255)
            pixels[i] = faded(pixels[i], coverage[i]);
    }
}

}  // namespace canvas
