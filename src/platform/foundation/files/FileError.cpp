#include "platform/foundation/files/FileError.hpp"

#include <system_error>
#include <utility>

namespace foundation {

FileError::FileError(int code, std::filesystem::path path)
    : std::runtime_error(path.string() + ": " + std::generic_category().message(code)),
      code_(code),
      path_(std::move(path)) {}

}  // namespace foundation
