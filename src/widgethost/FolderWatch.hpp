#pragma once

#include "platform/foundation/FileDescriptor.hpp"
#include "widgethost/MainLoop.hpp"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace widgethost {

/// Tells of files that change in a folder, and of the folder when it comes or goes: it need not be
/// there.
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
