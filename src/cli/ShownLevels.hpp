#pragma once

#include "platform/foundation/Date.hpp"
#include "platform/widgets/StaticConfiguration.hpp"

namespace cli {

/// Throws Failure where the widget's face would show a level that has no per cent: drawing it stops
/// the process, as it is to stop the extension.
void requireLevelsToShow(const widgets::StaticConfiguration& widget,
                         const widgets::AnyEntry& entry,
                         foundation::Date now);

}  // namespace cli
