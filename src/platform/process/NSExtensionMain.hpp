#pragma once

#include "platform/process/Extension.hpp"

namespace process {

/// Where the process of an extension starts. Confines the process to the extension's bundle, the
/// fonts and texts of the system and the containers that the extension is entitled to; calls the
/// program's own `main`, which hands over what the extension offers; then answers the widget host
/// over the socket that it was started with, until that is closed. The exit status: 0 when the
/// widget host closed the socket, else 1 with a message.
///
/// With `--require-sandbox` it refuses to run where the kernel does not grant the whole of it.
int NSExtensionMain(int argumentCount, char** arguments, int (*programMain)(int, char**));

/// What `widgetBundleMain` handed over.
Extension& principalExtension();

}  // namespace process
