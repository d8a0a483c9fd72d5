#pragma once

#include "desktop/mount/Mount.hpp"

namespace desktop {

/// Surfaces of Wayland's bottom layer; null where the compositor or this build has none.
std::unique_ptr<Mount> layerShellMount();

}  // namespace desktop
