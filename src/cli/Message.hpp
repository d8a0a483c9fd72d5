#pragma once

#include "platform/foundation/Message.hpp"

namespace cli {

using foundation::message;

}  // namespace cli
