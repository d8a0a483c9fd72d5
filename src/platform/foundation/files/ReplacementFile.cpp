#include "platform/foundation/files/ReplacementFile.hpp"

#include "platform/foundation/files/FileError.hpp"

#include <fcntl.h>
#include <sys/file.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <memory>
#include <utility>

namespace foundation {
namespace {

constexpr std::string_view prefix = ".replacement-";
constexpr std::size_t digitCount = 16;
constexpr int openingAttempts = 100;

std::string nameOf(std::uint64_t number) {
    std::array<char, digitCount> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digitCount, number, 16).ptr;
    const auto count = static_cast<std::size_t>(end - digits.data());
    return std::string(prefix) + std::string(digitCount - count, '0') +
           std::string(digits.data(), count);
}

bool isReplacementName(std::string_view name) {
    return name.size() == prefix.size() + digitCount && name.starts_with(prefix) &&
           name.find_first_not_of("0123456789abcdef", prefix.size()) == std::string_view::npos;
}

void removeIfLeftOver(const std::string& path, const FileCalls& calls) {
    const FileDescriptor file(
        calls.open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0));
    if (file && calls.flock(file.number(), LOCK_EX | LOCK_NB) == 0)
        calls.unlink(path.c_str());
}

/// Locks a new file. False where somebody came between the opening and the locking, took it for a
/// left-over one and has removed it or is about to. A file system without locks has no sweepers.
bool isLocked(const FileDescriptor& file, const FileCalls& calls) {
    if (calls.flock(file.number(), LOCK_EX | LOCK_NB) != 0)
        return errno != EWOULDBLOCK;
    struct stat status {};
    return calls.fstat(file.number(), &status) != 0 || status.st_nlink > 0;
}

}  // namespace

ReplacementFile::ReplacementFile(std::filesystem::path target, mode_t mode, const FileCalls& calls)
    : target_(std::move(target)), calls_(calls) {
    for (int attempt = 0; attempt < openingAttempts; ++attempt)
        if (open(mode))
            return;
    fail(EAGAIN);
}

/// False where another name has to be tried. No file has had this one before, so that whoever
/// removes a file by its name cannot meet another's.
bool ReplacementFile::open(mode_t mode) {
    std::uint64_t number = 0;
    if (calls_.getrandom(&number, sizeof number) != sizeof number)
        fail(errno);
    std::string name = (target_.parent_path() / nameOf(number)).string();
    FileDescriptor file(calls_.open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (!file && errno != EEXIST && errno != EINTR)
        fail(errno);
    if (!file)
        return false;
    if (!isLocked(file, calls_)) {
        calls_.unlink(name.c_str());
        return false;
    }
    name_ = std::move(name);
    file_ = std::move(file);
    return true;
}

ReplacementFile::~ReplacementFile() {
    if (!name_.empty())
        calls_.unlink(name_.c_str());
}

void ReplacementFile::changeMode(mode_t mode) {
    if (calls_.fchmod(file_.number(), mode) != 0)
        fail(errno);
}

void ReplacementFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = calls_.write(file_.number(), bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            fail(count < 0 ? errno : EIO);
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void ReplacementFile::synchronize() {
    if (calls_.fsync(file_.number()) != 0)
        fail(errno);
}

void ReplacementFile::takePlace(bool byExchange) {
    const bool isExchanged = byExchange && exchange() && removeExchanged();
    if (!isExchanged && calls_.rename(name_.c_str(), target_.c_str()) != 0)
        fail(errno);
    name_.clear();
}

bool ReplacementFile::exchange() {
    return calls_.renameat2(name_.c_str(), target_.c_str(), RENAME_EXCHANGE) == 0;
}

/// Removes what was the target. Where that does not work, gives both files their names back.
bool ReplacementFile::removeExchanged() {
    if (calls_.unlink(name_.c_str()) == 0)
        return true;
    const int error = errno;
    if (exchange())
        return false;
    if (error != ENOENT)
        fail(error);
    return true;
}

void ReplacementFile::fail(int error) const {
    throw FileError(error, target_);
}

void removeLeftOverReplacements(const std::filesystem::path& folder, const FileCalls& calls) {
    const auto close = [](DIR* stream) { ::closedir(stream); };
    const std::unique_ptr<DIR, decltype(close)> stream(
        calls.opendir(folder.empty() ? "." : folder.c_str()), close);
    while (const dirent* entry = stream ? calls.readdir(stream.get()) : nullptr)
        if (isReplacementName(entry->d_name))
            removeIfLeftOver((folder / entry->d_name).string(), calls);
}

}  // namespace foundation
