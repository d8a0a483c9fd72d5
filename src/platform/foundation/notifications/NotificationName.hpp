#pragma once

#include <string>
#include <string_view>

namespace foundation {

/// The object path of every notification on the bus.
inline constexpr const char* notificationPath = "/";

/// A notification's name as the bus knows it: the interface is all up to the last dot, the member
/// what follows. A name that is no name of the bus is left to the bus to refuse.
struct NotificationName {
    explicit NotificationName(std::string_view name)
        : interface(name.substr(0, name.rfind('.'))), member(name.substr(name.rfind('.') + 1)) {}

    std::string interface;
    std::string member;
};

}  // namespace foundation
