#pragma once

#include <filesystem>
#include <stdexcept>

namespace foundation {

/// Why a file could not be read or written: the system's error number, the file, and both as text.
class FileError : public std::runtime_error {
  public:
    FileError(int code, std::filesystem::path path);

    int code() const { return code_; }
    const std::filesystem::path& path() const { return path_; }

  private:
    int code_;
    std::filesystem::path path_;
};

}  // namespace foundation
