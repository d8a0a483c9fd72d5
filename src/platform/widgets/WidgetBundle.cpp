#include "platform/widgets/WidgetBundle.hpp"

#include <algorithm>

namespace widgets {

const StaticConfiguration* widgetOfKind(const WidgetBundle& bundle, std::string_view kind) {
    const auto found = std::find_if(bundle.begin(), bundle.end(),
                                    [&](const auto& widget) { return widget.kind() == kind; });
    return found == bundle.end() ? nullptr : &*found;
}

}  // namespace widgets
