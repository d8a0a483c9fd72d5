#include "platform/process/ExtensionPermissions.hpp"

#include "platform/canvas/FontFolders.hpp"
#include "platform/foundation/bundle/Bundle.hpp"
#include "platform/foundation/bundle/Entitlements.hpp"
#include "platform/foundation/files/DefaultFileManager.hpp"

namespace process {

namespace {

/// More than any face takes; whoever needs more has been given something that is no snapshot.
constexpr std::size_t memory =
    NURVA_SANITIZED ? sandbox::Permissions::unlimited : std::size_t{256} << 20;

}  // namespace

sandbox::Permissions permissionsOfExtension(const foundation::EnvironmentVariables& variables) {
    const auto bundle = foundation::Bundle::main(variables);
    sandbox::Permissions permissions{.readable = canvas::fontFolders(variables), .memory = memory};
    permissions.readable.push_back(bundle.path());
    const foundation::DefaultFileManager files(variables);
    for (const std::string& group : foundation::Entitlements::of(bundle).applicationGroups)
        if (const auto container = files.containerURL(group))
            permissions.writable.push_back(*container);
    return permissions;
}

}  // namespace process
