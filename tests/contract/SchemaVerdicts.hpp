#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// What the JSON Schema of a file says of each text, one letter a text: y valid, n not, x no JSON.
/// Throws std::runtime_error where the validator cannot be run.
std::string schemaVerdicts(const std::filesystem::path& schema,
                           const std::vector<std::string>& texts);
