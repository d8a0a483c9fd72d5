#include "cli/OutputFile.hpp"

#include "cli/Failure.hpp"
#include "cli/Message.hpp"
#include "platform/foundation/files/FileDescriptor.hpp"
#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/WriteFile.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

namespace cli {

namespace {

[[noreturn]] void fail(const std::string& file, int error) {
    throw Failure(ExitStatus::couldNot, message("no se puede escribir %@: %@",
                                                {file, std::string(std::strerror(error))}));
}

void writeAll(int descriptor, std::string_view bytes, const std::string& file) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            fail(file, errno);
        if (written > 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

}  // namespace

void writeOutput(const std::string& file, std::string_view bytes) {
    if (file.empty()) {
        writeAll(STDOUT_FILENO, bytes, message("la salida"));
        return;
    }
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        const foundation::FileDescriptor existing(::open(file.c_str(), O_WRONLY | O_CLOEXEC));
        if (!existing)
            fail(file, errno);
        writeAll(existing.number(), bytes, file);
        return;
    }
    try {
        foundation::writeFileAtomically(bytes, file);
    } catch (const foundation::FileError& failure) {
        fail(file, failure.code());
    }
}

}  // namespace cli
