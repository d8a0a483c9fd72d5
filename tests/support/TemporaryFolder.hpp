#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace support {

/// An empty folder of its own, removed with everything in it at the end.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        const std::string unique(6, 'X');  // whose place `mkdtemp` fills
        std::string name =
            (std::filesystem::temp_directory_path() / ("nurva-test-" + unique)).string();
        if (!::mkdtemp(name.data()))
            throw std::runtime_error("no temporary folder: " + name);
        path_ = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& path() const { return path_; }

    /// Writes a file at a path relative to the folder, with the folders on the way to it.
    std::filesystem::path write(const std::filesystem::path& name, std::string_view bytes) const {
        const std::filesystem::path file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream stream(file, std::ios::binary);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!stream.flush())
            throw std::runtime_error("cannot write " + file.string());
        return file;
    }

  private:
    std::filesystem::path path_;
};

}  // namespace support
