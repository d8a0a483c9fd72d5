#include "platform/views/scene/HitTest.hpp"

#include <algorithm>

namespace views {

const Control* controlAt(const Scene& scene, Point point) {
    const auto topmost =
        std::find_if(scene.controls.rbegin(), scene.controls.rend(),
                     [&](const Control& control) { return control.frame.contains(point); });
    return topmost == scene.controls.rend() ? nullptr : &*topmost;
}

}  // namespace views
