#include "platform/canvas/FontFiles.hpp"

#include <array>
#include <filesystem>
#include <string_view>

namespace canvas {

namespace {

/// A place where a distribution keeps a face's files; the weight's name stands between the two.
struct FontPlace {
    views::FontDesign design;
    std::string_view before;
    std::string_view after;
};

using enum views::FontDesign;

constexpr std::array places{
    FontPlace{standard, "/usr/share/fonts/opentype/inter/Inter-", ".otf"},
    FontPlace{standard, "/usr/share/fonts/truetype/inter/Inter-", ".ttf"},
    FontPlace{standard, "/usr/share/fonts/inter/Inter-", ".otf"},
    FontPlace{standard, "/usr/share/fonts/inter/Inter-", ".ttf"},
    FontPlace{standard, "/usr/local/share/fonts/Inter-", ".otf"},
    FontPlace{monospaced, "/usr/share/fonts/truetype/jetbrains-mono/JetBrainsMono-", ".ttf"},
    FontPlace{monospaced, "/usr/share/fonts/jetbrains-mono-fonts/JetBrainsMono-", ".otf"},
    FontPlace{monospaced, "/usr/share/fonts/jetbrains-mono/JetBrainsMono-", ".ttf"},
    FontPlace{monospaced, "/usr/share/fonts/TTF/JetBrainsMono-", ".ttf"},
    FontPlace{monospaced, "/usr/local/share/fonts/JetBrainsMono-", ".ttf"},
};

std::string_view weightName(views::FontWeight weight) {
    switch (weight) {
        case views::FontWeight::regular:
            return "Regular";
        case views::FontWeight::medium:
            return "Medium";
        case views::FontWeight::semibold:
            return "SemiBold";
        case views::FontWeight::bold:
            return "Bold";
    }
    return {};
}

}  // namespace

std::optional<std::string> standInFile(views::FontDesign design, views::FontWeight weight) {
    for (const FontPlace& place : places) {
        if (place.design != design)
            continue;
        std::string file(place.before);
        file.append(weightName(weight)).append(place.after);
        std::error_code ignored;
        if (std::filesystem::is_regular_file(file, ignored))
            return file;
    }
    return std::nullopt;
}

const char* standInFamily(views::FontDesign design) {
    return design == standard ? "Inter" : "JetBrains Mono";
}

}  // namespace canvas
