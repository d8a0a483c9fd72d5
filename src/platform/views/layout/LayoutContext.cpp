#include "platform/views/layout/LayoutContext.hpp"

#include <bit>
#include <cmath>
#include <cstdint>
#include <utility>

namespace views {

namespace {

/// A hash and a length in one; the standard one of a length takes longer than many a layout.
std::size_t mixed(std::size_t hash, double length) {
    constexpr std::uint64_t oddConstant = 0x9E3779B97F4A7C15;
    // Both zeros have one hash, as they are equal.
    const std::uint64_t product = (hash ^ std::bit_cast<std::uint64_t>(length + 0.0)) * oddConstant;
    return product ^ (product >> 32);
}

}  // namespace

LayoutContext::LayoutContext(const TextMeasurer& measurer, double scale)
    : text(measurer), pixel(1 / scale) {}

LayoutContext::~LayoutContext() = default;

double LayoutContext::roundedUpToPixel(double length) const {
    // A length that is whole pixels but for the rounding of a sum must not grow by one.
    constexpr double tolerance = 1e-6;
    return std::ceil(length / pixel - tolerance) * pixel;
}

const StackLayout* LayoutContext::remembered(const void* stack, const Proposal& proposal) const {
    const auto found = stacks_.find({stack, proposal});
    return found == stacks_.end() ? nullptr : &found->second;
}

const StackLayout& LayoutContext::remember(const void* stack,
                                           const Proposal& proposal,
                                           StackLayout layout) {
    return stacks_.insert_or_assign({stack, proposal}, std::move(layout)).first->second;
}

const TextLayout* LayoutContext::remembered(const void* theText,
                                            double width,
                                            std::size_t lines) const {
    const auto found = texts_.find({theText, width, lines});
    return found == texts_.end() ? nullptr : &found->second;
}

const TextLayout& LayoutContext::remember(const void* theText,
                                          double width,
                                          std::size_t lines,
                                          TextLayout layout) {
    return texts_.insert_or_assign({theText, width, lines}, std::move(layout)).first->second;
}

const View& LayoutContext::keep(View view) {
    return kept_.emplace_front(std::move(view));
}

std::size_t LayoutContext::Hash::operator()(const StackKey& key) const {
    // An absent length hashes like one that no parent offers.
    constexpr double absent = -1;
    const std::size_t hash =
        mixed(std::bit_cast<std::uintptr_t>(key.stack), key.proposal.width.value_or(absent));
    return mixed(hash, key.proposal.height.value_or(absent));
}

std::size_t LayoutContext::Hash::operator()(const TextKey& key) const {
    return mixed(std::bit_cast<std::uintptr_t>(key.text) + key.lines, key.width);
}

}  // namespace views
