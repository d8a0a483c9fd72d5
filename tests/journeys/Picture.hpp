#pragma once

#include "platform/canvas/Pixels.hpp"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace journeys {

/// A part of a screen or of a window, in pixels.
struct Area {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Area&) const = default;
};

/// What is seen on a part of a screen.
struct Picture {
    canvas::PixelSize size;
    std::vector<std::uint32_t> argb;
    bool operator==(const Picture&) const = default;

    std::uint32_t at(int x, int y) const {
        return argb[static_cast<std::size_t>(y * size.width + x)];
    }

    /// A picture file; an empty picture where it cannot be read.
    static Picture read(const std::filesystem::path& png);
    void write(const std::filesystem::path& png) const;
};

}  // namespace journeys
