#include "platform/foundation/files/DefaultFileManager.hpp"

#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/files/WriteFile.hpp"

#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <system_error>

namespace foundation {
namespace {

std::optional<std::filesystem::path> absolutePath(const std::optional<std::string>& text) {
    if (!text || text->front() != '/')
        return std::nullopt;
    return std::filesystem::path(*text);
}

std::optional<std::filesystem::path> dataFolder(const EnvironmentVariables& variables) {
    if (auto folder = absolutePath(variables.value("XDG_DATA_HOME")))
        return folder;
    if (auto home = absolutePath(variables.value("HOME")))
        return *home / ".local" / "share";
    return std::nullopt;
}

}  // namespace

DefaultFileManager::DefaultFileManager(const EnvironmentVariables& variables) {
    if (const auto data = dataFolder(variables))
        containers_ = *data / "group-containers";
}

bool DefaultFileManager::namesContainer(std::string_view groupIdentifier) {
    return !groupIdentifier.empty() && groupIdentifier != "." && groupIdentifier != ".." &&
           groupIdentifier.find_first_of(std::string_view("/\0", 2)) == std::string_view::npos;
}

std::optional<std::filesystem::path> DefaultFileManager::containerPlace(
    std::string_view groupIdentifier) const {
    if (!containers_ || !namesContainer(groupIdentifier))
        return std::nullopt;
    return *containers_ / groupIdentifier;
}

std::optional<std::filesystem::path> DefaultFileManager::containerURL(
    std::string_view groupIdentifier) const {
    auto container = containerPlace(groupIdentifier);
    std::error_code ignored;
    if (!container || !std::filesystem::is_directory(*container, ignored))
        return std::nullopt;
    return container;
}

std::string DefaultFileManager::contents(const std::filesystem::path& path) const {
    return readFile(path);
}

void DefaultFileManager::writeAtomically(std::string_view bytes,
                                         const std::filesystem::path& path) const {
    writeFileAtomically(bytes, path);
}

std::filesystem::path DefaultFileManager::createContainer(std::string_view groupIdentifier) const {
    const auto place = containerPlace(groupIdentifier);
    if (!place)
        throw FileError(ENOENT, std::filesystem::path(groupIdentifier));
    const std::filesystem::path& container = *place;
    std::error_code error;
    std::filesystem::create_directories(*containers_, error);
    constexpr mode_t userAlone = 0700;
    if (error || (::mkdir(container.c_str(), userAlone) != 0 && errno != EEXIST))
        throw FileError(error ? error.value() : errno, container);
    if (!std::filesystem::is_directory(container, error))
        throw FileError(ENOTDIR, container);
    return container;
}

}  // namespace foundation
