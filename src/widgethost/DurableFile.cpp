#include "widgethost/DurableFile.hpp"

#include "platform/foundation/FileDescriptor.hpp"
#include "platform/foundation/FileError.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>

namespace widgethost {

namespace {

/// A file that is gone again unless it is kept.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::filesystem::path& target)
        : target_(target), name_(target.string() + ".XXXXXX") {
        file_ = foundation::FileDescriptor(::mkostemp(name_.data(), O_CLOEXEC));
        if (!file_)
            throw foundation::FileError(errno, target_);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!name_.empty())
            ::unlink(name_.c_str());
    }

    void write(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t count = ::write(file_.number(), bytes.data(), bytes.size());
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                throw foundation::FileError(count < 0 ? errno : EIO, target_);
            bytes.remove_prefix(static_cast<std::size_t>(count));
        }
        if (::fsync(file_.number()) != 0)
            throw foundation::FileError(errno, target_);
    }

    void takePlace() {
        if (::rename(name_.c_str(), target_.c_str()) != 0)
            throw foundation::FileError(errno, target_);
        name_.clear();
    }

  private:
    const std::filesystem::path& target_;
    std::string name_;
    foundation::FileDescriptor file_;
};

/// Puts the names in a folder on the disk. Some file systems cannot and need not.
void synchronize(const std::filesystem::path& folder) {
    const foundation::FileDescriptor file(
        ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!file || (::fsync(file.number()) != 0 && errno != EINVAL))
        throw foundation::FileError(errno, folder);
}

/// Makes a folder that is for the user alone, unless it is there.
void makeFolder(const std::filesystem::path& folder) {
    struct stat status {};
    if (folder.empty() || ::stat(folder.c_str(), &status) == 0)
        return;
    makeFolder(folder.parent_path());
    if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST)
        throw foundation::FileError(errno, folder);
    synchronize(folder.parent_path());
}

}  // namespace

void writeFileDurably(std::string_view bytes, const std::filesystem::path& path) {
    makeFolder(path.parent_path());
    TemporaryFile file(path);
    file.write(bytes);
    file.takePlace();
    synchronize(path.parent_path());
}

}  // namespace widgethost
