#pragma once

#include "desktop/WidgetSource.hpp"

#include <functional>
#include <memory>

namespace desktop {

/// Makes the source of faces.
using MakeSource =
    std::function<std::unique_ptr<WidgetSource>(const widgethost::SessionOptions& options)>;

/// The widget host's program, until it is asked to end or nothing of it is left to be seen; where
/// it runs already, that one opens its gallery. Returns its exit status: 0 done, 1 could not, 2
/// wrong use. Messages go to the standard error.
int run(int argumentCount, char** arguments, const MakeSource& makeSource);

}  // namespace desktop
