#pragma once

#include "platform/foundation/bundle/Bundle.hpp"
#include "platform/foundation/localization/FormatArgument.hpp"
#include "platform/foundation/localization/Locale.hpp"

#include <span>
#include <string>
#include <string_view>

namespace foundation {

/// The user's text for a key in a bundle's table; without an entry the key is the text. With
/// arguments it is expanded by the locale, without any it is shown as it stands. A translation
/// whose specifiers do not fit the arguments gives way to the key. Any thread; never fails.
std::string localizedString(std::string_view key,
                            const Bundle& bundle,
                            const Locale& locale,
                            std::span<const FormatArgument> arguments = {});

}  // namespace foundation
