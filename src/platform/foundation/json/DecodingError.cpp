#include "platform/foundation/json/DecodingError.hpp"

#include <utility>

namespace foundation {

DecodingError::DecodingError(Kind errorKind, std::string path, std::string description)
    : kind(errorKind), codingPath(std::move(path)), debugDescription(std::move(description)) {}

DecodingError DecodingError::keyNotFound(std::string_view key, std::string codingPath) {
    std::string description = "No value associated with key \"";
    description.append(key).append("\".");
    DecodingError error(Kind::keyNotFound, std::move(codingPath), std::move(description));
    error.missingKey = key;
    return error;
}

DecodingError DecodingError::malformed() {
    return {Kind::dataCorrupted, "", "The given data was not valid JSON."};
}

const char* DecodingError::what() const noexcept {
    return debugDescription.c_str();
}

std::string DecodingError::place() const {
    if (codingPath.empty() || missingKey.empty()) {
        return codingPath + missingKey;
    }
    return codingPath + "." + missingKey;
}

std::string_view name(DecodingError::Kind kind) {
    switch (kind) {
        case DecodingError::Kind::keyNotFound:
            return "keyNotFound";
        case DecodingError::Kind::typeMismatch:
            return "typeMismatch";
        case DecodingError::Kind::valueNotFound:
            return "valueNotFound";
        case DecodingError::Kind::dataCorrupted:
            return "dataCorrupted";
    }
    return {};
}

}  // namespace foundation
