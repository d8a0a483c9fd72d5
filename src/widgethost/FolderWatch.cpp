#include "widgethost/FolderWatch.hpp"

#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace widgethost {

namespace {

constexpr std::uint32_t itself = IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
constexpr std::uint32_t ofFiles = itself | IN_MOVED_TO | IN_MOVED_FROM | IN_CLOSE_WRITE | IN_DELETE;
constexpr std::uint32_t ofFolders = itself | IN_CREATE | IN_MOVED_TO;

}  // namespace

FolderWatch::FolderWatch(std::filesystem::path folder,
                         std::vector<std::string> files,
                         Events events)
    : folder_(std::move(folder)),
      files_(std::move(files)),
      events_(std::move(events)),
      notifier_(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    if (!notifier_)
        throw std::system_error(errno, std::generic_category(), "inotify");
    watch();
    if (watched_ < 0)
        throw std::system_error(ENOSPC, std::generic_category(), "inotify");
    source_ = whenReadable(notifier_.number(), [this] { read(); });
}

void FolderWatch::watch() {
    std::filesystem::path missing;
    std::error_code ignored;
    // What came while the folder above was looked at would never be told of: that is looked for
    // again. What is there and cannot be watched is not.
    do {
        if (watched_ >= 0)
            ::inotify_rm_watch(notifier_.number(), watched_);
        missing = watchClosest();
    } while (!missing.empty() && std::filesystem::is_directory(missing, ignored));
}

std::filesystem::path FolderWatch::watchClosest() {
    std::filesystem::path missing;
    std::filesystem::path place = folder_;
    while (true) {
        watchesFolder_ = place == folder_;
        watched_ = ::inotify_add_watch(notifier_.number(), place.c_str(),
                                       watchesFolder_ ? ofFiles : ofFolders);
        if (watched_ >= 0 || place == place.root_path())
            return missing;
        if (errno == ENOENT || errno == ENOTDIR)
            missing = place;
        place = place.parent_path();
    }
}

void FolderWatch::read() {
    bool filesChanged = false;
    bool mayHaveMoved = false;
    alignas(inotify_event) char bytes[4096];
    ssize_t size = 0;
    while ((size = ::read(notifier_.number(), bytes, sizeof bytes)) > 0) {
        for (const char* at = bytes; at < bytes + size;) {
            const auto* const event = reinterpret_cast<const inotify_event*>(at);
            at += sizeof *event + event->len;
            const bool isOfFolder = event->len == 0 || !watchesFolder_;
            // What is told of a watch that is no more says nothing.
            if ((event->mask & IN_Q_OVERFLOW) != 0)
                filesChanged = mayHaveMoved = true;
            else if (event->wd != watched_ || (event->mask & IN_IGNORED) != 0)
                continue;
            else if (isOfFolder)
                mayHaveMoved = true;
            else if (std::ranges::find(files_, event->name) != files_.end())
                filesChanged = true;
        }
    }
    if (mayHaveMoved) {
        const bool wasThere = watchesFolder_;
        watch();
        if (wasThere || watchesFolder_)
            return events_.onFolder();
    }
    if (filesChanged)
        events_.onFile();
}

}  // namespace widgethost
