#pragma once

#include "platform/views/view/Modifiers.hpp"

// The bodies of the modifiers, which need a whole View. Included by View.hpp only.

namespace views {

View framed(const View& view, const FixedFrame& frame);
View framed(const View& view, const FlexibleFrame& frame);
View padded(const View& view, Edge edges, double length);
View withBackground(const View& view, const View& background);
View withBackground(const View& view, const Color& color, const Shape& shape);
View withOverlay(const View& view, const View& overlay);
View withOpacity(const View& view, double opacity);
View movedBy(const View& view, double dx, double dy);
View withFixedSize(const View& view, FixedAxes axes);
View withContainerBackground(const View& view, const Color& color);

template <class Self>
View Modifiers<Self>::frame(const FixedFrame& frame) const {
    return framed(static_cast<const Self&>(*this), frame);
}

template <class Self>
View Modifiers<Self>::frame(const FlexibleFrame& frame) const {
    return framed(static_cast<const Self&>(*this), frame);
}

template <class Self>
View Modifiers<Self>::padding(Edge edges, double length) const {
    return padded(static_cast<const Self&>(*this), edges, length);
}

template <class Self>
View Modifiers<Self>::background(const View& view) const {
    return withBackground(static_cast<const Self&>(*this), view);
}

template <class Self>
View Modifiers<Self>::background(const Color& color, const Shape& shape) const {
    return withBackground(static_cast<const Self&>(*this), color, shape);
}

template <class Self>
View Modifiers<Self>::overlay(const View& view) const {
    return withOverlay(static_cast<const Self&>(*this), view);
}

template <class Self>
View Modifiers<Self>::opacity(double opacity) const {
    return withOpacity(static_cast<const Self&>(*this), opacity);
}

template <class Self>
View Modifiers<Self>::offset(double dx, double dy) const {
    return movedBy(static_cast<const Self&>(*this), dx, dy);
}

template <class Self>
View Modifiers<Self>::fixedSize(FixedAxes axes) const {
    return withFixedSize(static_cast<const Self&>(*this), axes);
}

template <class Self>
View Modifiers<Self>::containerBackground(const Color& color) const {
    return withContainerBackground(static_cast<const Self&>(*this), color);
}

}  // namespace views
