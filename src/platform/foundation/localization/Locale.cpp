#include "platform/foundation/localization/Locale.hpp"

#include "platform/foundation/localization/Languages.hpp"

namespace foundation {

Locale Locale::current(const EnvironmentVariables& variables) {
    const auto name = variables.firstSet({"LC_ALL", "LC_NUMERIC", "LANG"});
    if (!name || isCLocale(*name))
        return {"en_US_POSIX"};
    return {std::string(localeIdentifier(*name))};
}

}  // namespace foundation
