#pragma once

#include "platform/foundation/json/Encoder.hpp"
#include "platform/views/scene/Scene.hpp"

namespace views {

// The scene as JSON: sizes, frames, points and colours as arrays, commands as objects named by
// "op". Numbers that are not finite cannot be written and throw EncodingError.

void encode(foundation::Encoder& encoder, const Point& point);
void encode(foundation::Encoder& encoder, const Size& size);
void encode(foundation::Encoder& encoder, const Rect& frame);
void encode(foundation::Encoder& encoder, const Color& color);
void encode(foundation::Encoder& encoder, const Command& command);
void encode(foundation::Encoder& encoder, const Control& control);
void encode(foundation::Encoder& encoder, const AccessibilityElement& element);

/// The members "background", "drawing", "controls" and "accessibility" of an object.
void encodeMembers(foundation::Encoder& encoder, const Scene& scene);

}  // namespace views
