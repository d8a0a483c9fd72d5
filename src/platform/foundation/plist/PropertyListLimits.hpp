#pragma once

#include <cstddef>

/// How much a property list may hold; ours have some dozens of lines.
namespace foundation::PropertyListLimits {

inline constexpr std::size_t fileBytes = std::size_t{1} << 20;
/// Containers inside one another.
inline constexpr int depth = 64;
/// Containers of one XML text, bounding how deep the library that parses it recurses.
inline constexpr std::size_t containers = 10'000;
/// Memory that the values of a binary list may take once each reference is followed.
inline constexpr std::size_t expandedBytes = std::size_t{4} << 20;

}  // namespace foundation::PropertyListLimits
