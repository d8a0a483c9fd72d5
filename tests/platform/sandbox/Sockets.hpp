#pragma once

#include "platform/foundation/files/FileDescriptor.hpp"

#include <string>

/// Each answers 0 or an error number. A local name that begins with NUL is an abstract one.
int bindLocal(const std::string& name);
int connectLocal(const std::string& name);
int bindAnyPort();
int connectToClosedPort();

/// A socket that listens on a local name.
foundation::FileDescriptor listenLocal(const std::string& name);

/// Two connected sockets.
struct SocketPair {
    SocketPair();
    foundation::FileDescriptor ours;
    foundation::FileDescriptor theirs;
};

/// Sends a message of one byte with a descriptor, and takes one in.
void sendDescriptor(int socket, int descriptor);
foundation::FileDescriptor receiveDescriptor(int socket);
