#pragma once

#include "platform/intents/ArchivedAction.hpp"
#include "platform/remote/Face.hpp"
#include "platform/remote/WidgetDescription.hpp"
#include "platform/remote/WireParts.hpp"

#include <vector>

namespace remote {

// Values as parts of a message. Writing throws std::system_error where the message cannot hold
// them, reading where the message holds something else; nothing read is trusted to make sense.

void write(sd_bus_message& message, const intents::ArchivedAction& action);
void write(sd_bus_message& message, const Face& face);
void write(sd_bus_message& message, const std::vector<WidgetDescription>& gallery);

intents::ArchivedAction readAction(sd_bus_message& message);
Face readFace(sd_bus_message& message);
std::vector<WidgetDescription> readGallery(sd_bus_message& message);

}  // namespace remote
