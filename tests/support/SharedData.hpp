#pragma once

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

namespace support {

/// A file of the reference data that may lie beside the checkout: in the folder named by
/// NURVA_SHARED, else in `shared` next to the checkout. Nothing when it is not there; a test then
/// skips.
inline std::optional<std::filesystem::path> sharedData(std::string_view name) {
    const char* named = std::getenv("NURVA_SHARED");
    const std::filesystem::path checkout = std::filesystem::path(NURVA_TESTS_FOLDER).parent_path();
    const std::filesystem::path folder =
        named && *named ? std::filesystem::path(named) : checkout.parent_path() / "shared";
    std::error_code ignored;
    std::filesystem::path file = folder / name;
    if (!std::filesystem::exists(file, ignored))
        return std::nullopt;
    return file;
}

}  // namespace support
