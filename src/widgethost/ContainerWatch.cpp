#include "widgethost/ContainerWatch.hpp"

#include "platform/foundation/bundle/Entitlements.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"

namespace widgethost {

namespace {

std::vector<std::string> reloadFiles(const foundation::Bundle& bundle) {
    const auto extension = bundle.objectForInfoDictionaryKey("NSExtension");
    const auto* const members = extension ? extension->dictionary() : nullptr;
    if (!members)
        return {};
    const auto attributes = members->find("NSExtensionAttributes");
    return attributes == members->end() ? std::vector<std::string>()
                                        : attributes->second.strings("WidgetReloadFiles");
}

}  // namespace

std::list<FolderWatch> watchContainers(const foundation::Bundle& bundle,
                                       const FolderWatch::Events& events) {
    std::list<FolderWatch> watches;
    const foundation::DefaultFileManager files;
    for (const std::string& group : foundation::Entitlements::of(bundle).applicationGroups)
        if (const auto container = files.containerPlace(group))
            watches.emplace_back(*container, reloadFiles(bundle), events);
    return watches;
}

}  // namespace widgethost
