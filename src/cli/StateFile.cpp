#include "cli/StateFile.hpp"

#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/ReadFile.hpp"

#include <cerrno>
#include <iostream>
#include <utility>

namespace cli {

namespace {

constexpr std::string_view standardInput = "-";

/// All of standard input, no more than of any file. Throws FileError.
std::string readStandardInput() {
    std::string input(foundation::maximumFileBytes + 1, '\0');
    std::cin.read(input.data(), static_cast<std::streamsize>(input.size()));
    input.resize(static_cast<std::size_t>(std::cin.gcount()));
    if (input.size() > foundation::maximumFileBytes)
        throw foundation::FileError(EFBIG, standardInput);
    return input;
}

}  // namespace

StateFile::StateFile(std::string name) : name_(std::move(name)) {
    if (name_ == standardInput)
        input_ = readStandardInput();
}

std::optional<std::filesystem::path> StateFile::containerURL(std::string_view) const {
    return std::filesystem::path(name_).parent_path();
}

std::string StateFile::contents(const std::filesystem::path&) const {
    return name_ == standardInput ? input_ : foundation::readFile(name_);
}

void StateFile::writeAtomically(std::string_view, const std::filesystem::path& path) const {
    throw foundation::FileError(EROFS, path);
}

}  // namespace cli
