#include "platform/foundation/json/EncodingError.hpp"

#include <utility>

namespace foundation {

EncodingError::EncodingError(Kind errorKind, std::string path, std::string description)
    : kind(errorKind), codingPath(std::move(path)), debugDescription(std::move(description)) {}

const char* EncodingError::what() const noexcept {
    return debugDescription.c_str();
}

}  // namespace foundation
