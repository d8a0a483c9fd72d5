#pragma once

#include "support/Program.hpp"

#include <optional>
#include <sstream>
#include <string>
#include <vector>

/// The document for authors of host applications.
namespace document {

inline std::string text() {
    return support::contentsOf(NURVA_DOCS_FOLDER "/host-applications.md");
}

inline std::vector<std::string> lines() {
    std::istringstream stream(text());
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// The blocks of code in this language.
inline std::vector<std::string> blocks(const std::string& language) {
    std::vector<std::string> blocks;
    bool isInside = false;
    for (const std::string& line : lines()) {
        if (line.starts_with("```")) {
            isInside = line == "```" + language;
            if (isInside)
                blocks.emplace_back();
        } else if (isInside) {
            blocks.back() += line + "\n";
        }
    }
    return blocks;
}

/// The cells of a row of a table, without the code marks around them; nothing of other lines.
inline std::optional<std::vector<std::string>> row(const std::string& line) {
    if (!line.starts_with("| "))
        return std::nullopt;
    std::vector<std::string> cells;
    for (std::size_t at = 2, end; (end = line.find(" |", at)) != std::string::npos; at = end + 3) {
        std::string cell = line.substr(at, end - at);
        if (cell.starts_with('`') && cell.ends_with('`'))
            cell = cell.substr(1, cell.size() - 2);
        cells.push_back(cell);
    }
    return cells;
}

}  // namespace document
