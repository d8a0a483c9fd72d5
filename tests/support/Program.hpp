#pragma once

#include "support/TemporaryFolder.hpp"

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace support {

inline std::string contentsOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// What came of a program: its exit status (128 and more: a signal) and what it wrote.
struct Outcome {
    int status = 0;
    std::string output;
    std::string errors;
};

/// Runs a line of shell, from a folder of its own.
inline Outcome run(const std::string& line) {
    const TemporaryFolder folder;
    const std::string out = (folder.path() / "out").string();
    const std::string err = (folder.path() / "err").string();
    const int status = std::system(
        ("cd '" + folder.path().string() + "' && { " + line + "\n} >'" + out + "' 2>'" + err + "'")
            .c_str());
    return {.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status),
            .output = contentsOf(out),
            .errors = contentsOf(err)};
}

}  // namespace support
