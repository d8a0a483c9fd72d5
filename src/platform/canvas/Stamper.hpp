#pragma once

#include "platform/canvas/FontLibrary.hpp"
#include "platform/canvas/PixelGrid.hpp"
#include "platform/canvas/RecentlyUsed.hpp"
#include "platform/canvas/Stamp.hpp"
#include "platform/views/scene/Scene.hpp"

#include <vector>

namespace canvas {

using Stencils = RecentlyUsed<Stencil>;

/// Turns drawing commands into stamps, with the stencils that are kept or with new ones.
class Stamper {
  public:
    /// `visible` is the picture; of what is too large to be kept only the part inside is drawn.
    Stamper(PixelGrid grid, PixelRect visible, Stencils& stencils, FontLibrary& fonts)
        : grid_(grid), visible_(visible), stencils_(stencils), fonts_(fonts) {}

    /// The stamps of commands, in their order.
    std::vector<Stamp> stamps(const std::vector<views::Command>& drawing);

    /// The shape in a frame of whole pixels.
    Stamp filled(const views::Shape& shape, const PixelRect& frame, const views::Color& color);

  private:
    struct Visitor;

    PixelGrid grid_;
    PixelRect visible_;
    Stencils& stencils_;
    FontLibrary& fonts_;
};

}  // namespace canvas
