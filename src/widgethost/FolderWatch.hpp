#pragma once

#include "platform/foundation/files/FileDescriptor.hpp"
#include "widgethost/MainLoop.hpp"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace widgethost {

/// Tells of files that change in a folder, and of the folder when it comes or goes: it need not be
/// there. One that may not be watched is told of as little as one that never comes.
class FolderWatch {
  public:
    struct Events {
        std::function<void()> onFile;    // one of the files is another one, or gone
        std::function<void()> onFolder;  // the folder is another one, or gone
    };

    /// Throws std::system_error where the system has no watch left.
    FolderWatch(std::filesystem::path folder, std::vector<std::string> files, Events events);

  private:
    void watch();
    /// Watches the folder, or the closest one above that can be watched. Answers the next one on
    /// the way down, where it is not there.
    std::filesystem::path watchClosest();
    void read();

    std::filesystem::path folder_;
    std::vector<std::string> files_;
    Events events_;
    foundation::FileDescriptor notifier_;
    int watched_ = -1;
    bool watchesFolder_ = false;  // else the closest folder above that is there
    Source source_;
};

}  // namespace widgethost
