#include "platform/process/NSExtensionMain.hpp"

#include "platform/foundation/files/FileDescriptor.hpp"
#include "platform/foundation/localization/Message.hpp"
#include "platform/process/ExtensionPermissions.hpp"
#include "platform/process/RequestLoop.hpp"
#include "platform/remote/Protocol.hpp"
#include "platform/sandbox/Confinement.hpp"

#include <pthread.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <cstddef>
#include <iostream>
#include <span>
#include <string_view>
#include <system_error>

namespace process {

namespace {

using foundation::message;

int fail(const std::string& text) {
    std::cerr << "nurva-widgets-extension: " << text << std::endl;
    return 1;
}

bool isSocket(int descriptor) {
    int type = 0;
    socklen_t size = sizeof type;
    return ::getsockopt(descriptor, SOL_SOCKET, SO_TYPE, &type, &size) == 0;
}

/// Stacks count as memory, of which a confined process has little: threads get those that are
/// usual, though the user may allow far larger ones.
void bringStacksToUsualSize() {
    constexpr std::size_t usual = std::size_t{8} << 20;
    pthread_attr_t attributes;
    ::pthread_attr_init(&attributes);
    ::pthread_attr_setstacksize(&attributes, usual);
    ::pthread_setattr_default_np(&attributes);
    ::pthread_attr_destroy(&attributes);
}

}  // namespace

Extension& principalExtension() {
    static Extension extension;
    return extension;
}

int NSExtensionMain(int argumentCount, char** arguments, int (*programMain)(int, char**)) {
    const std::span given(arguments, static_cast<std::size_t>(argumentCount));
    const bool requiresSandbox =
        given.size() == 2 && given[1] == std::string_view("--require-sandbox");
    if (!isSocket(remote::protocol::socketDescriptor) || (given.size() > 1 && !requiresSandbox))
        return fail(message("esto lo arranca el escritorio de widgets; prueba nurva desktop"));
    foundation::FileDescriptor socket(remote::protocol::socketDescriptor);
    try {
        // Nothing waits for a process whose widget host was killed, and nothing that the widget
        // host had open is the extension's business.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        ::closefrom(remote::protocol::socketDescriptor + 1);
        bringStacksToUsualSize();
        const sandbox::Confinement confinement = sandbox::confine(permissionsOfExtension());
        if (requiresSandbox && !confinement.isComplete())
            return fail(message("el núcleo no da el aislamiento entero, y sin él no arranca"));
        if (const int status = programMain(argumentCount, arguments); status != 0)
            return status;
        answerRequests(std::move(socket), principalExtension());
        return 0;
    } catch (const std::system_error& error) {
        return fail(message("no se puede seguir: %@", {std::string(error.what())}));
    }
}

}  // namespace process
