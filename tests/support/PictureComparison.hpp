#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <ostream>
#include <span>

/// How far two pictures of the same size are apart.
struct PictureDifference {
    int largest = 0;           // of any channel of any pixel, 0 to 255
    double changedShare = 0;   // pixels with a channel more than `tolerance` apart, 0 to 1
    double averageChange = 0;  // of all channels of all pixels, 0 to 255

    friend std::ostream& operator<<(std::ostream& out, const PictureDifference& difference) {
        return out << "largest difference of a channel " << difference.largest
                   << ", pixels changed " << difference.changedShare << ", average change "
                   << difference.averageChange;
    }
};

/// Compares pixels of four 8-bit channels each. Pictures of different sizes are wholly different.
inline PictureDifference comparePictures(std::span<const std::uint32_t> one,
                                         std::span<const std::uint32_t> other,
                                         int tolerance = 0) {
    if (one.size() != other.size())
        return {255, 1, 255};
    PictureDifference result;
    std::size_t changed = 0;
    double sum = 0;
    for (std::size_t i = 0; i < one.size(); ++i) {
        int pixel = 0;
        for (const int shift : {0, 8, 16, 24}) {
            const int a = static_cast<int>(one[i] >> shift & 0xFF);
            const int b = static_cast<int>(other[i] >> shift & 0xFF);
            pixel = std::max(pixel, std::abs(a - b));
            sum += std::abs(a - b);
        }
        result.largest = std::max(result.largest, pixel);
        changed += pixel > tolerance ? 1 : 0;
    }
    if (!one.empty()) {
        result.changedShare = static_cast<double>(changed) / static_cast<double>(one.size());
        result.averageChange = sum / 4 / static_cast<double>(one.size());
    }
    return result;
}
