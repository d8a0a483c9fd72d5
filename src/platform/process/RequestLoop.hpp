#pragma once

#include "platform/foundation/Environment.hpp"
#include "platform/foundation/files/FileDescriptor.hpp"
#include "platform/process/Extension.hpp"

namespace process {

/// Answers what comes over the socket until its other end is closed. Throws std::system_error where
/// the socket speaks something else or breaks.
void answerRequests(foundation::FileDescriptor socket, const Extension& extension);

}  // namespace process
