#pragma once

#include "platform/views/Probe.hpp"
#include "platform/views/layout/Alignment.hpp"

#include <optional>
#include <random>
#include <vector>

namespace views {

/// The description of a view as plain data, of which both the view and what is expected of it are
/// made. Which fields count depends on the kind.
struct Tree {
    enum class Kind {
        leaf,      // width, height, baseline
        wrapping,  // ideal width; as high as it is narrow
        spacer,    // width.least
        hstack,    // alignment, spacing
        vstack,
        zstack,         // alignment
        list,           // only in stacks
        fixedFrame,     // lengths, alignment
        flexibleFrame,  // width and height bounds, alignment
        padding,        // spacing, edges all around but leading and trailing apart
        fixedSize,      // horizontally and vertically where the lengths are given
        offset,         // spacing, both ways
        background,     // the second child behind the first
    };
    Kind kind = Kind::leaf;
    Range width;
    Range height;
    std::optional<double> baseline;
    std::optional<double> fixedWidth;
    std::optional<double> fixedHeight;
    std::optional<double> minWidth;
    std::optional<double> maxWidth;
    std::optional<double> minHeight;
    std::optional<double> maxHeight;
    double spacing = 0;
    Alignment alignment;
    std::vector<Tree> children;
};

/// How high a wrapping leaf is at a width.
double wrappedHeight(double idealWidth, double width);

/// Lengths are whole points, so that ties stay ties.
Tree randomTree(std::mt19937& random, int depth);

Proposal randomProposal(std::mt19937& random);

/// The view that a tree describes; its leaves note in `drawn` where they are drawn.
View viewOf(const Tree& tree, Frames& drawn);

}  // namespace views
