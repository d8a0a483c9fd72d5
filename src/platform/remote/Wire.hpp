#pragma once

#include "platform/intents/ArchivedAction.hpp"
#include "platform/remote/Face.hpp"
#include "platform/remote/WidgetDescription.hpp"

#include <systemd/sd-bus.h>

#include <string>
#include <string_view>
#include <vector>

namespace remote {

/// Throws std::system_error for a result below zero, as sd-bus answers them.
int check(int result);

// Values as parts of a message. Writing throws std::system_error where the message cannot hold
// them, reading where the message holds something else; nothing read is trusted to make sense.

void write(sd_bus_message& message, std::string_view text);
void write(sd_bus_message& message, const intents::ArchivedAction& action);
void write(sd_bus_message& message, const Face& face);
void write(sd_bus_message& message, const std::vector<WidgetDescription>& gallery);

std::string readText(sd_bus_message& message);
double readNumber(sd_bus_message& message);
std::uint32_t readCount(sd_bus_message& message);
intents::ArchivedAction readAction(sd_bus_message& message);
Face readFace(sd_bus_message& message);
std::vector<WidgetDescription> readGallery(sd_bus_message& message);

}  // namespace remote
