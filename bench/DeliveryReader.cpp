// The other side of the delivery: reads the request file named on the command line at each
// notification, and says so with one line.

#include "peticiones/Pedir.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/notifications/NotificationObserver.hpp"

#include <poll.h>
#include <unistd.h>

#include <string>

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2)
        return 2;
    const std::string file = arguments[1];
    foundation::NotificationObserver observer(nurva::GrupoDeApps::nombreDeNotificacion(), [&] {
        const bool isRead = !foundation::readFile(file).empty();
        if (::write(STDOUT_FILENO, isRead ? "1\n" : "0\n", 2) != 2)
            ::_exit(1);
    });
    if (::write(STDOUT_FILENO, "ready\n", 6) != 6)
        return 1;
    while (observer.process()) {
        pollfd ready{.fd = observer.descriptor(), .events = observer.events(), .revents = 0};
        ::poll(&ready, 1, -1);
    }
}
