#pragma once

#include <cstddef>
#include <cstdint>

namespace canvas {

// Arithmetic on premultiplied ARGB, one number a pixel; a part is 0 to 255.

/// The colour made `part` / 255 as opaque.
constexpr std::uint32_t faded(std::uint32_t argb, std::uint32_t part) {
    // Two channels at a time, each with 8 bits of room above it; adding the high byte to the low
    // one divides by 255, rounded.
    constexpr std::uint32_t channels = 0x00FF00FF;
    constexpr std::uint32_t halves = 0x00800080;
    std::uint32_t low = (argb & channels) * part + halves;
    std::uint32_t high = (argb >> 8 & channels) * part + halves;
    low = (low + (low >> 8 & channels)) >> 8 & channels;
    high = (high + (high >> 8 & channels)) & ~channels;
    return low | high;
}

/// `above` laid on `below`.
constexpr std::uint32_t over(std::uint32_t above, std::uint32_t below) {
    return above + faded(below, 255 - (above >> 24));
}

/// Lays a colour over pixels, as opaque as the coverage says.
void blendColor(std::uint32_t* pixels,
                const std::uint8_t* coverage,
                std::size_t count,
                std::uint32_t color);

/// Lays pixels over others, `part` / 255 as opaque as they are.
void blendPixels(std::uint32_t* pixels,
                 const std::uint32_t* above,
                 std::size_t count,
                 std::uint32_t part);

/// Takes away from pixels what is not covered.
void keepCovered(std::uint32_t* pixels, const std::uint8_t* coverage, std::size_t count);

}  // namespace canvas
