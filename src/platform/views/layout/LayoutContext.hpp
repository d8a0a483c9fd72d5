#pragma once

#include "platform/views/layout/StackLayout.hpp"
#include "platform/views/text/TextMeasurer.hpp"

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

namespace views {

class View;

/// What one layout pass knows: the text engine, the size of a pixel, and what its stacks have
/// already worked out, since a stack is asked for the same offer several times.
class LayoutContext {
  public:
    /// `scale` is pixels per point.
    LayoutContext(const TextMeasurer& text, double scale);
    ~LayoutContext();
    LayoutContext(const LayoutContext&) = delete;
    LayoutContext& operator=(const LayoutContext&) = delete;

    const TextMeasurer& text;
    const double pixel;  // points

    /// The length rounded up to whole pixels.
    double roundedUpToPixel(double length) const;

    /// What a stack worked out for the offer, or nothing yet.
    const StackLayout* remembered(const void* stack, const Proposal& proposal) const;
    const StackLayout& remember(const void* stack, const Proposal& proposal, StackLayout layout);

    /// Keeps a view made during the pass until its end, and so its place in what is remembered.
    const View& keep(View view);

  private:
    struct Key {
        const void* stack;
        Proposal proposal;
        bool operator==(const Key&) const = default;
    };
    struct Hash {
        std::size_t operator()(const Key& key) const;
    };
    std::unordered_map<Key, StackLayout, Hash> layouts_;
    std::vector<std::unique_ptr<const View>> kept_;
};

}  // namespace views
