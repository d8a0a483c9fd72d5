#include "platform/widgets/StaticConfiguration.hpp"

namespace widgets {

StaticConfiguration StaticConfiguration::configurationDisplayName(std::string key) const {
    StaticConfiguration copy = *this;
    copy.displayNameKey_ = std::move(key);
    return copy;
}

StaticConfiguration StaticConfiguration::description(std::string key) const {
    StaticConfiguration copy = *this;
    copy.descriptionKey_ = std::move(key);
    return copy;
}

StaticConfiguration StaticConfiguration::supportedFamilies(
    std::vector<WidgetFamily> families) const {
    StaticConfiguration copy = *this;
    copy.families_ = std::move(families);
    return copy;
}

}  // namespace widgets
