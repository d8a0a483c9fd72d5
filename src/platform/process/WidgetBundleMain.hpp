#pragma once

#include "platform/process/Extension.hpp"

namespace process {

/// What the `main` of an extension's program has to do: hand its widgets and actions to the entry
/// that called it.
void widgetBundleMain(Extension extension);

}  // namespace process
