#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace nurva {

/// Whether golden files are to be made anew, by tools/remake-goldens.
inline bool rehacer() {
    return std::getenv("NURVA_REMAKE_GOLDENS") != nullptr;
}

inline std::string leido(const std::filesystem::path& ruta) {
    std::ifstream entrada(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

inline void escrito(const std::filesystem::path& ruta, const std::string& bytes) {
    std::ofstream(ruta, std::ios::binary) << bytes;
}

}  // namespace nurva
