#pragma once

#include "platform/intents/IntentRegistry.hpp"

namespace nurva {

/// The four actions that the widgets' controls name. Any thread.
const intents::IntentRegistry& acciones();

}  // namespace nurva
