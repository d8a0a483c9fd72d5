#include "platform/views/modifiers/Modified.hpp"
#include "platform/views/modifiers/Wrapper.hpp"
#include "platform/views/stacks/Layers.hpp"

namespace views {

namespace {

/// Draws `other` in the middle of the frame, offered exactly its size.
void drawWithin(const Rect& frame, const View& other, LayoutContext& context, Recorder& recorder) {
    other.draw(aligned(other, Proposal::exactly(frame.size()), {}, frame, context), context,
               recorder);
}

struct WithBackground : Wrapper {
    View behind;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
        drawWithin(place.frame, behind, context, recorder);
        inner.draw(place, context, recorder);
    }
};

struct WithOverlay : Wrapper {
    View inFront;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const {
        inner.draw(place, context, recorder);
        drawWithin(place.frame, inFront, context, recorder);
    }
};

}  // namespace

View withBackground(const View& view, const View& background) {
    return modified(view, [&](const View& inner) { return WithBackground{{inner}, background}; });
}

View withBackground(const View& view, const Color& color, const Shape& shape) {
    return withBackground(
        view, std::visit([&](const auto& filled) { return filled.fill(color); }, shape));
}

View withOverlay(const View& view, const View& overlay) {
    return modified(view, [&](const View& inner) { return WithOverlay{{inner}, overlay}; });
}

}  // namespace views
