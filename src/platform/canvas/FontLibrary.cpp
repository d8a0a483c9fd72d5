#include "platform/canvas/FontLibrary.hpp"

#include "platform/canvas/FontFiles.hpp"
#include "platform/canvas/Key.hpp"
#include "platform/canvas/LineSetter.hpp"
#include "platform/canvas/RecentlyUsed.hpp"

#include <cmath>
#include <map>
#include <optional>
#include <string>

namespace canvas {

namespace {

constexpr std::size_t keptLines = 1 << 20;  // bytes

// Sizes that a font engine can count in, in points. Texts in others have no width.
constexpr double smallestSize = 0.0625;
constexpr double largestSize = 4096;

// Asks for the picture form of the character before it, which the stand-ins do not have.
constexpr std::string_view pictureSelector = "\uFE0F";

std::size_t bytes(const TextLine& line) {
    std::size_t sum = sizeof line + line.clusters.size() * sizeof(views::TextCluster);
    for (const TextRun& run : line.runs)
        sum += sizeof run + run.glyphs.size() * sizeof(cairo_glyph_t);
    return sum;
}

}  // namespace

struct FontLibrary::Contents {
    // A file each: a font map that gets another one forgets the fonts that it has made.
    std::map<std::string, FontSource> standIns;
    std::optional<FontSource> system;
    RecentlyUsed<TextLine> lines{keptLines};

    const FontSource& systemFonts() {
        if (!system)
            system = FontSource::system();
        return *system;
    }

    const FontSource& standIn(const std::string& file) {
        auto found = standIns.find(file);
        if (found == standIns.end())
            found = standIns.emplace(file, FontSource::only(file)).first;
        return found->second;
    }

    TextLine set(const DrawableText& text, const views::Font& font, double tracking) {
        const std::optional<std::string> file = standInFile(font.design, font.weight);
        if (file && text.utf8.find(pictureSelector) == std::string::npos) {
            LineSet set = setLine(standIn(*file), text, font, tracking);
            if (set.complete)
                return std::move(set.line);
        }
        return setLine(systemFonts(), text, font, tracking).line;
    }
};

FontLibrary::FontLibrary() : contents_(std::make_unique<Contents>()) {}
FontLibrary::~FontLibrary() = default;

std::shared_ptr<const TextLine> FontLibrary::line(std::string_view text,
                                                  const views::Font& font,
                                                  double tracking) {
    Key key;
    key << font.size << font.weight << font.design << tracking << text;
    if (auto kept = contents_->lines.find(key.bytes()))
        return kept;

    DrawableText drawable = drawableText(text, longestText);
    if (!(font.size >= smallestSize && font.size <= largestSize))
        drawable = {{}, {text.size()}};
    auto line = std::make_shared<const TextLine>(
        contents_->set(drawable, font, std::isfinite(tracking) ? tracking : 0));
    contents_->lines.keep(key.bytes(), line, bytes(*line));
    return line;
}

}  // namespace canvas
