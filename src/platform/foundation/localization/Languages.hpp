#pragma once

#include "platform/foundation/EnvironmentVariables.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace foundation {

/// The identifier inside a POSIX locale name: "es_MX.UTF-8@euro" becomes "es_MX".
std::string_view localeIdentifier(std::string_view posixName);

/// Whether a POSIX locale name means no language at all: "C", "POSIX", "C.UTF-8".
bool isCLocale(std::string_view posixName);

/// The languages the user reads, best first, such as {"pt_BR", "en"}: the list in LANGUAGE, else
/// the first set of LC_ALL, LC_MESSAGES and LANG. None in the C locale, where LANGUAGE is not
/// looked at.
std::vector<std::string> preferredLanguages(const EnvironmentVariables& variables);

}  // namespace foundation
