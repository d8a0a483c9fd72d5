#pragma once

#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>
#include <vector>

/// One recorded answer of the platform's own coder.
struct CodingCase {
    std::string id;
    std::string group;
    std::string note;
    std::string type;         ///< "estado" or "codificarEstado"
    nlohmann::json input;     ///< the bytes in `hex`, or the field and the number to encode
    nlohmann::json expected;  ///< ok, then values and text; or error and codingPath
};

/// One case a line, plain or compressed.
std::vector<CodingCase> codingCases(const std::filesystem::path& file);

/// What the case's text really gives, where that is not what is expected; empty where it is.
struct Disagreement {
    std::string verdict;  ///< whether it decodes, and to which values
    std::string error;    ///< kind and path of the error
};

Disagreement disagreement(const CodingCase& codingCase);
