#include "platform/views/layout/LayoutContext.hpp"

#include "platform/views/view/View.hpp"

#include <cmath>
#include <functional>
#include <utility>

namespace views {

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
    return *kept_.emplace_back(std::make_unique<const View>(std::move(view)));
}

std::size_t LayoutContext::Hash::operator()(const StackKey& key) const {
    // An absent length hashes like one that no parent offers.
    constexpr double absent = -1;
    std::size_t hash = std::hash<const void*>{}(key.stack);
    for (const auto& length : {key.proposal.width, key.proposal.height})
        hash = hash * 31 + std::hash<double>{}(length.value_or(absent));
    return hash;
}

std::size_t LayoutContext::Hash::operator()(const TextKey& key) const {
    return (std::hash<const void*>{}(key.text) * 31 + std::hash<double>{}(key.width)) * 31 +
           key.lines;
}

}  // namespace views
