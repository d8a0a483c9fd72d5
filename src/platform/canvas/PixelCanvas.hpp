#pragma once

#include "platform/canvas/FontLibrary.hpp"
#include "platform/canvas/Pixels.hpp"
#include "platform/views/scene/Scene.hpp"

#include <cstdint>
#include <memory>
#include <span>

namespace canvas {

/// Draws scenes into pixels, fast when one resembles the last: the coverage of shapes, curves,
/// symbols and lines of text is kept and only laid down again. The corners outside the card are
/// transparent. The library must outlive it. Used by one thread at a time.
class PixelCanvas {
  public:
    explicit PixelCanvas(FontLibrary& fonts);
    ~PixelCanvas();
    PixelCanvas(const PixelCanvas&) = delete;
    PixelCanvas& operator=(const PixelCanvas&) = delete;

    /// The picture at `scale` pixels per point; the pixels are valid until the next call. Throws
    /// std::invalid_argument as pixelSize does.
    Pixels draw(const views::Scene& scene, double scale);

    /// The same into the caller's memory, which holds exactly pixelSize(scene.size, scale).count()
    /// pixels.
    void draw(const views::Scene& scene, double scale, std::span<std::uint32_t> target);

  private:
    struct Contents;
    std::unique_ptr<Contents> contents_;
};

}  // namespace canvas
