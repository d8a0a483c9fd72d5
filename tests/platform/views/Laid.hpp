#pragma once

#include "platform/views/layout/LayoutContext.hpp"
#include "platform/views/scene/Recorder.hpp"
#include "platform/views/view/View.hpp"
#include "support/FixedTextMeasurer.hpp"

#include <ostream>

namespace views {

inline void PrintTo(const Rect& r, std::ostream* out) {
    *out << "{" << r.x << ", " << r.y << ", " << r.width << ", " << r.height << "}";
}
inline void PrintTo(const Size& s, std::ostream* out) {
    *out << "{" << s.width << ", " << s.height << "}";
}
inline void PrintTo(const Proposal& p, std::ostream* out) {
    for (const auto& length : {p.width, p.height})
        length ? *out << *length << " " : *out << "absent ";
}

// One view by itself, without a card around it. Half a point is a pixel, a character half an em.

inline Size sizeOf(const View& view, const Proposal& offer) {
    const support::FixedTextMeasurer measurer;
    LayoutContext context(measurer, 2);
    return view.sizeThatFits(offer, context);
}

inline double baselineOf(const View& view, const Proposal& offer) {
    const support::FixedTextMeasurer measurer;
    LayoutContext context(measurer, 2);
    return view.firstBaseline(offer, context);
}

/// What the view draws at the origin, in the size that it takes of the offer; on a card without
/// end.
inline Scene drawn(const View& view, const Proposal& offer) {
    const support::FixedTextMeasurer measurer;
    LayoutContext context(measurer, 2);
    Recorder recorder({infinity, infinity});
    const Size size = view.sizeThatFits(offer, context);
    view.draw({{0, 0, size.width, size.height}, offer}, context, recorder);
    return std::move(recorder).finish();
}

/// The first command of a kind in a drawing.
template <class Kind>
const Kind& only(const std::vector<Command>& drawing) {
    return std::get<Kind>(drawing.at(0).alternatives());
}

}  // namespace views
