#pragma once

#include <cairo.h>

#include <memory>

namespace desktop {

struct DestroyRegion {
    void operator()(cairo_region_t* region) const { cairo_region_destroy(region); }
};
using Region = std::unique_ptr<cairo_region_t, DestroyRegion>;

/// The pixels of a card with round corners.
Region cardOutline(int width, int height, double cornerRadius);

}  // namespace desktop
