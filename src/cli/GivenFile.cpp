#include "cli/GivenFile.hpp"

#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/ReadFile.hpp"

#include <cerrno>
#include <iostream>
#include <utility>

namespace cli {

namespace {

constexpr std::string_view standardInput = "-";

/// All of standard input, or so much of it that it is too large.
std::string readStandardInput() {
    std::string input(foundation::maximumFileBytes + 1, '\0');
    std::cin.read(input.data(), static_cast<std::streamsize>(input.size()));
    input.resize(static_cast<std::size_t>(std::cin.gcount()));
    return input;
}

}  // namespace

GivenFile::GivenFile(std::string name) : name_(std::move(name)) {
    if (name_ == standardInput)
        input_ = readStandardInput();
}

std::optional<std::filesystem::path> GivenFile::containerURL(std::string_view) const {
    return std::filesystem::path(name_).parent_path();
}

std::string GivenFile::contents(const std::filesystem::path&) const {
    if (name_ != standardInput)
        return foundation::readFile(name_);
    if (input_.size() > foundation::maximumFileBytes)
        throw foundation::FileError(EFBIG, standardInput);
    return input_;
}

void GivenFile::writeAtomically(std::string_view, const std::filesystem::path& path) const {
    throw foundation::FileError(EROFS, path);
}

}  // namespace cli
