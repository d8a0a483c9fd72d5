#include "platform/widgets/WidgetFamily.hpp"

namespace widgets {

std::string name(WidgetFamily family) {
    return family == WidgetFamily::systemSmall ? "systemSmall" : "systemMedium";
}

views::Size cardSize(WidgetFamily family) {
    return family == WidgetFamily::systemSmall ? views::Size{170, 170} : views::Size{364, 170};
}

}  // namespace widgets
