#pragma once

#include "platform/foundation/files/FileDescriptor.hpp"
#include "platform/foundation/notifications/SessionBus.hpp"

namespace remote {

/// The two who hold an end of the private socket.
enum class End { widgetHost, extension };

/// The connection over one's end of the socket. Nobody but the other can be at its other end, so
/// nobody has to say who they are. Throws std::system_error.
foundation::SessionBus connect(foundation::FileDescriptor socket, End end);

}  // namespace remote
