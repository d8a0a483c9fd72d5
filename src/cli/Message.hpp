#pragma once

#include "platform/foundation/localization/Message.hpp"

namespace cli {

using foundation::message;

}  // namespace cli
