#pragma once

#include "platform/foundation/files/FileCalls.hpp"
#include "platform/foundation/files/FileDescriptor.hpp"

#include <filesystem>
#include <string>
#include <string_view>

namespace foundation {

/// A new file under a name of its own that is to take the place of another in the same folder, and
/// that is gone again if it does not. It is locked as long as it lives, which tells it from one
/// that a crash has left over. Everything throws FileError, with the path of the file to replace.
class ReplacementFile {
  public:
    /// Requires that the calls outlive it.
    ReplacementFile(std::filesystem::path target, mode_t mode, const FileCalls& calls);
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;
    ~ReplacementFile();

    void changeMode(mode_t mode);
    void write(std::string_view bytes);

    /// Waits until what was written is on the disk.
    void synchronize();

    /// Takes the place of the target, whatever it is by now. With `byExchange` the two files swap
    /// their names before the old one is removed: to replace by renaming makes ext4 write the file
    /// out at once, which takes four times as long as all the rest.
    void takePlace(bool byExchange);

  private:
    bool open(mode_t mode);
    bool exchange();
    bool removeExchanged();
    [[noreturn]] void fail(int error) const;

    std::filesystem::path target_;
    const FileCalls& calls_;
    std::string name_;
    FileDescriptor file_;
};

/// Removes the replacement files in a folder whose writers are no more. Never fails: what cannot be
/// removed stays.
void removeLeftOverReplacements(const std::filesystem::path& folder, const FileCalls& calls);

}  // namespace foundation
