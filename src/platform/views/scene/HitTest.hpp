#pragma once

#include "platform/views/scene/Scene.hpp"

namespace views {

/// The control a press at this point meets: the topmost, or none. It lives as long as the scene.
const Control* controlAt(const Scene& scene, Point point);

}  // namespace views
