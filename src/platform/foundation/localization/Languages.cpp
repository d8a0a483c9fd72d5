#include "platform/foundation/localization/Languages.hpp"

#include <algorithm>

namespace foundation {

std::string_view localeIdentifier(std::string_view posixName) {
    return posixName.substr(0, posixName.find_first_of(".@"));
}

bool isCLocale(std::string_view posixName) {
    const std::string_view identifier = localeIdentifier(posixName);
    return identifier == "C" || identifier == "POSIX";
}

std::vector<std::string> preferredLanguages(const EnvironmentVariables& variables) {
    const auto locale = variables.firstSet({"LC_ALL", "LC_MESSAGES", "LANG"});
    if (!locale || isCLocale(*locale))
        return {};
    std::vector<std::string> languages;
    const std::string list = variables.value("LANGUAGE").value_or("");
    for (std::size_t start = 0; start < list.size();) {
        const std::size_t end = std::min(list.find(':', start), list.size());
        const std::string_view code =
            localeIdentifier(std::string_view(list).substr(start, end - start));
        if (!code.empty())
            languages.emplace_back(code);
        start = end + 1;
    }
    if (languages.empty())
        languages.emplace_back(localeIdentifier(*locale));
    return languages;
}

}  // namespace foundation
