#include "platform/views/scene/Scene.hpp"

namespace views {

bool Group::operator==(const Group& other) const {
    return opacity == other.opacity && drawing == other.drawing;
}

bool Command::operator==(const Command& other) const {
    return alternatives() == other.alternatives();
}

}  // namespace views
