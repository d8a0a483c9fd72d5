#include "platform/foundation/localization/Message.hpp"

#include "platform/foundation/Environment.hpp"
#include "platform/foundation/localization/LocalizedString.hpp"

namespace foundation {

std::string message(std::string_view key, const std::vector<FormatArgument>& arguments) {
    static const Environment environment = processEnvironment();
    return localizedString(key, environment.mainBundle, environment.locale, arguments);
}

}  // namespace foundation
