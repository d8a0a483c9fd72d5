#include "platform/sandbox/Probe.hpp"

#include <fcntl.h>
#include <sys/stat.h>

#include <cstdio>

namespace {

namespace fs = std::filesystem;

using Folder = fs::path (Grounds::*)() const;

/// A probe that does something with a path in one of the folders.
Probe with(std::string name,
           Folder folder,
           const char* file,
           const std::function<int(const char*)>& action) {
    return {std::move(name), EACCES, Outside::works, [=](const Grounds& grounds) {
                return errorOf(action(((grounds.*folder)() / file).c_str()));
            }};
}

Probe opening(std::string name, Folder folder, const char* file, int flags) {
    return with(std::move(name), folder, file,
                [=](const char* path) { return ::open(path, flags, 0600); });
}

Probe renaming(std::string name, Folder from, Folder to, const char* target, unsigned flags = 0) {
    return {std::move(name), EACCES, Outside::works, [=](const Grounds& grounds) {
                const fs::path source = (grounds.*from)() / "file";
                return errorOf(::renameat2(AT_FDCWD, source.c_str(), AT_FDCWD,
                                           ((grounds.*to)() / target).c_str(), flags));
            }};
}

int makeFolder(const char* path) {
    return ::mkdir(path, 0700);
}

}  // namespace

std::vector<Probe> writingProbes() {
    constexpr Folder home = &Grounds::home;
    constexpr Folder bundle = &Grounds::bundle;
    constexpr Folder container = &Grounds::container;
    return {
        opening("MakeAFileOutside", home, "new", O_WRONLY | O_CREAT),
        opening("MakeANamelessFileOutside", home, "", O_WRONLY | O_TMPFILE),
        opening("WriteAFileOutside", home, "file", O_WRONLY),
        with("MakeAFolderOutside", home, "new", makeFolder),
        with("RemoveAFileOutside", home, "file", ::unlink),
        with("RemoveAFolderOutside", home, "folder", ::rmdir),
        opening("MakeAFileInTheBundle", bundle, "new", O_WRONLY | O_CREAT),
        opening("WriteAFileOfTheBundle", bundle, "file", O_WRONLY),
        opening("EmptyAFileOfTheBundle", bundle, "file", O_WRONLY | O_TRUNC),
        with("MakeAFolderInTheBundle", bundle, "new", makeFolder),
        with("RemoveAFileOfTheBundle", bundle, "file", ::unlink),
        renaming("RenameAFileOfTheBundle", bundle, bundle, "new"),
        renaming("MoveAFileOutOfTheContainer", container, home, "new"),
        renaming("MoveAFileIntoTheContainer", home, container, "new"),
        renaming("MoveAFileFromTheBundleIntoTheContainer", bundle, container, "new"),
        renaming("ExchangeAFileWithOneOutside", container, home, "file", RENAME_EXCHANGE),
    };
}
