#include "platform/sandbox/Grounds.hpp"

namespace fs = std::filesystem;

Grounds::Grounds() {
    for (const char* name : {"container", "bundle", "home"}) {
        folder_.write(fs::path(name) / "file", "text");
        fs::create_directory(folder_.path() / name / "folder");
    }
    fs::create_symlink(home() / "file", container() / "way-out");
    fs::permissions(folder_.path(), fs::perms::all);
    for (const auto& entry : fs::recursive_directory_iterator(folder_.path()))
        if (!entry.is_symlink())
            fs::permissions(entry.path(), fs::perms::all);
}
