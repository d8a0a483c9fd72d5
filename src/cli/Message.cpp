#include "cli/Message.hpp"

#include "platform/foundation/Environment.hpp"
#include "platform/foundation/LocalizedString.hpp"

namespace cli {

std::string message(std::string_view key,
                    const std::vector<foundation::FormatArgument>& arguments) {
    static const foundation::Environment environment = foundation::processEnvironment();
    return foundation::localizedString(key, environment.mainBundle, environment.locale, arguments);
}

}  // namespace cli
