#include "platform/process/RequestLoop.hpp"

#include "platform/foundation/notifications/SessionBus.hpp"
#include "platform/intents/IntentError.hpp"
#include "platform/process/ExtensionService.hpp"
#include "platform/process/ForwardedNotifications.hpp"
#include "platform/remote/Connection.hpp"
#include "platform/remote/Protocol.hpp"

#include <poll.h>

#include <array>
#include <cerrno>
#include <new>
#include <stdexcept>
#include <system_error>

namespace process {

namespace {

using remote::check;

int answer(sd_bus_message* call, void* service, sd_bus_error* error) {
    try {
        return static_cast<ExtensionService*>(service)->answer(*call) ? 1 : 0;
    } catch (const std::system_error& fault) {
        return sd_bus_error_set_errno(error, fault.code().value());
    } catch (const intents::IntentError& fault) {
        return sd_bus_error_set(error, SD_BUS_ERROR_INVALID_ARGS, fault.what());
    } catch (const std::invalid_argument& fault) {
        return sd_bus_error_set(error, SD_BUS_ERROR_INVALID_ARGS, fault.what());
    }
}

void forward(sd_bus& bus, const std::string& name) {
    sd_bus_message* made = nullptr;
    check(sd_bus_message_new_method_call(&bus, &made, nullptr, remote::protocol::path,
                                         remote::protocol::interface, "Post"));
    const foundation::BusMessage post(made);
    check(sd_bus_message_set_expect_reply(made, false));
    remote::write(*post, name);
    check(sd_bus_send(&bus, made, nullptr));
}

/// Waits until the connection or a task has something to do.
void wait(sd_bus& bus, const LoopTasks& tasks) {
    std::array<pollfd, 2> ready{
        pollfd{sd_bus_get_fd(&bus), static_cast<short>(check(sd_bus_get_events(&bus))), 0},
        pollfd{tasks.descriptor(), POLLIN, 0}};
    if (::poll(ready.data(), ready.size(), -1) < 0 && errno != EINTR)
        throw std::system_error(errno, std::generic_category(), "poll");
}

bool saysClosed(const std::system_error& fault) {
    const int error = fault.code().value();
    return error == ECONNRESET || error == ENOTCONN || error == EPIPE;
}

}  // namespace

void answerRequests(foundation::FileDescriptor socket, const Extension& extension) try {
    const foundation::SessionBus bus = remote::connect(std::move(socket), remote::End::extension);
    LoopTasks tasks;
    const ForwardedNotifications notifications([&](std::string name) {
        tasks.add([&bus, name = std::move(name)] { forward(*bus, name); });
    });
    const foundation::Environment process = foundation::processEnvironment();
    const foundation::Environment environment{process.clock, process.fileManager, notifications,
                                              process.mainBundle, process.locale};
    ExtensionService service(extension, environment, tasks);
    check(sd_bus_add_object(bus.get(), nullptr, remote::protocol::path, answer, &service));
    while (true) {
        tasks.run();
        if (check(sd_bus_process(bus.get(), nullptr)) == 0)
            wait(*bus, tasks);
    }
} catch (const std::system_error& fault) {
    if (!saysClosed(fault))
        throw;
}

}  // namespace process
