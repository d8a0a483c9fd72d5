#include "widgethost/ContainerWatch.hpp"

#include "platform/foundation/bundle/Entitlements.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"
#include "platform/foundation/localization/Message.hpp"

#include <iostream>
#include <system_error>
#include <utility>

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

/// Adds a watch. Where the system has none left the widgets do without: the host application's own
/// calls and the timelines still reload them.
void watch(std::list<FolderWatch>& watches,
           const std::filesystem::path& container,
           std::vector<std::string> files,
           const FolderWatch::Events& events) {
    try {
        watches.emplace_back(container, std::move(files), events);
    } catch (const std::system_error& error) {
        std::cerr << "nurva: "
                  << foundation::message(
                         "no se puede vigilar %@ (%@): los widgets tardarán en ponerse al día; "
                         "cierra programas o sube los límites fs.inotify",
                         {container.string(), std::string(error.what())})
                  << std::endl;
    }
}

}  // namespace

std::list<FolderWatch> watchContainers(const foundation::Bundle& bundle,
                                       const FolderWatch::Events& events) {
    std::list<FolderWatch> watches;
    const foundation::DefaultFileManager files;
    for (const std::string& group : foundation::Entitlements::of(bundle).applicationGroups)
        if (const auto container = files.containerPlace(group))
            watch(watches, *container, reloadFiles(bundle), events);
    return watches;
}

}  // namespace widgethost
