#include "platform/process/WidgetBundleMain.hpp"

#include "platform/process/NSExtensionMain.hpp"

namespace process {

void widgetBundleMain(Extension extension) {
    principalExtension() = extension;
}

}  // namespace process
