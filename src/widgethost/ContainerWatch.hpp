#pragma once

#include "platform/foundation/bundle/Bundle.hpp"
#include "widgethost/FolderWatch.hpp"

#include <list>

namespace widgethost {

/// Watches the containers of the groups that an extension's bundle is entitled to, for the files
/// that the bundle calls a reason to reload. Where the system has no watch left it says so on
/// standard error, and a container goes unwatched.
std::list<FolderWatch> watchContainers(const foundation::Bundle& bundle,
                                       const FolderWatch::Events& events);

}  // namespace widgethost
