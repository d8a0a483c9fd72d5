#pragma once

#include "platform/views/layout/StackLayout.hpp"
#include "platform/views/text/TextLayout.hpp"
#include "platform/views/text/TextMeasurer.hpp"
#include "platform/views/view/View.hpp"

#include <array>
#include <cstddef>
#include <forward_list>
#include <memory_resource>
#include <unordered_map>

namespace views {

/// What one layout pass knows: the text engine, the size of a pixel, and what its stacks and texts
/// have already worked out, since each is asked for the same offer several times.
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

    /// The same of a text, for a width and a number of lines.
    const TextLayout* remembered(const void* text, double width, std::size_t lines) const;
    const TextLayout& remember(const void* text,
                               double width,
                               std::size_t lines,
                               TextLayout layout);

    /// Memory for what is needed until the end of the pass, none of it freed before.
    std::pmr::memory_resource* memory() { return &memory_; }

    /// Keeps a view made during the pass until its end, and so its place in what is remembered.
    const View& keep(View view);

  private:
    struct StackKey {
        const void* stack;
        Proposal proposal;
        bool operator==(const StackKey&) const = default;
    };
    struct TextKey {
        const void* text;
        double width;
        std::size_t lines;
        bool operator==(const TextKey&) const = default;
    };
    struct Hash {
        std::size_t operator()(const StackKey& key) const;
        std::size_t operator()(const TextKey& key) const;
    };

    // As much as an ordinary face takes.
    alignas(std::max_align_t) std::array<std::byte, std::size_t{24} * 1024> buffer_;
    std::pmr::monotonic_buffer_resource memory_{buffer_.data(), buffer_.size()};
    std::pmr::unordered_map<StackKey, StackLayout, Hash> stacks_{&memory_};
    std::pmr::unordered_map<TextKey, TextLayout, Hash> texts_{&memory_};
    std::pmr::forward_list<View> kept_{&memory_};
};

}  // namespace views
