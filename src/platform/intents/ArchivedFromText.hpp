#pragma once

#include "platform/intents/ArchivedAction.hpp"
#include "platform/intents/IntentDescription.hpp"

#include <span>
#include <string>

namespace intents {

/// The action that a person names with its values written as `parameter=value`: a text in UTF-8
/// as it stands, a finite number as in 0.5, a truth as true, false, sí, si or no. Throws
/// IntentError; whether values are missing is left to whoever runs it.
ArchivedAction archivedFromText(const IntentDescription& description,
                                std::span<const std::string> assignments);

}  // namespace intents
