#include "desktop/card/CardOutline.hpp"

#include <algorithm>
#include <cmath>

namespace desktop {

Region cardOutline(int width, int height, double cornerRadius) {
    Region region(cairo_region_create());
    for (int y = 0; y < height; ++y) {
        // From the middle of the row to the corner's centre, where it is in the corner at all.
        const double toEdge = std::min(y, height - 1 - y) + 0.5;
        const double off = std::max(cornerRadius - toEdge, 0.0);
        const double reach = std::sqrt(std::max(cornerRadius * cornerRadius - off * off, 0.0));
        const int left = off > 0 ? static_cast<int>(std::lround(cornerRadius - reach)) : 0;
        const cairo_rectangle_int_t row{left, y, std::max(width - 2 * left, 0), 1};
        cairo_region_union_rectangle(region.get(), &row);
    }
    return region;
}

}  // namespace desktop
