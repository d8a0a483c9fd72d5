#pragma once

#include "platform/foundation/localization/FormatArgument.hpp"
#include "platform/foundation/localization/Locale.hpp"
#include "platform/foundation/localization/LocalizedFormat.hpp"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace foundation {

/// A format with its arguments put in. It may hold %@ for a text, %lld (%ld, %d) for an integer,
/// %.1f (other digits too) for a double, %% for a per-cent sign, positions such as %2$@, and
/// variables %#@name@ worded by the plural rules of `language`. Nothing when a specifier is unknown
/// or does not fit its argument; arguments may stay unused. Any thread; never fails otherwise.
std::optional<std::string> expandedFormat(const LocalizedFormat& format,
                                          std::span<const FormatArgument> arguments,
                                          const Locale& locale,
                                          std::string_view language);

/// The same of a format without variables.
std::optional<std::string> expandedFormat(std::string_view format,
                                          std::span<const FormatArgument> arguments,
                                          const Locale& locale);

}  // namespace foundation
