#pragma once

#include "platform/foundation/localization/StringsTable.hpp"

#include <filesystem>
#include <memory>

namespace foundation {

/// The table `Localizable` of a folder, or null when the folder holds neither of its two files. The
/// last few are kept for the whole process, so that an unchanged table costs no more than looking
/// whether it has changed. Any thread; never fails: a file that cannot be read is as if it were
/// empty.
std::shared_ptr<const StringsTable> localizableTable(const std::filesystem::path& folder);

}  // namespace foundation
