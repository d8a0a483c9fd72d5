#include "platform/views/text/TextLayout.hpp"

#include "platform/views/layout/Proposal.hpp"
#include "platform/views/text/LineBreaks.hpp"

#include <algorithm>
#include <span>

namespace views {

namespace {

constexpr std::string_view ellipsis = "…";

/// The start of a text that is too long, cut between two characters, with the ellipsis behind it.
std::string shortened(std::string_view text) {
    std::size_t end = longestText;
    const auto continuesCharacter = [&](std::size_t i) {
        return (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
    };
    while (end > 0 && continuesCharacter(end))
        --end;
    return std::string(text.substr(0, end)).append(ellipsis);
}

/// Sets one text, line after line.
class Typesetter {
  public:
    Typesetter(const Font& font,
               double tracking,
               double maxWidth,
               std::size_t maxLines,
               const TextMeasurer& measurer)
        : font_(font),
          tracking_(tracking),
          maxWidth_(maxWidth + roundingError),
          maxLines_(maxLines),
          measurer_(measurer) {}

    TextLayout set(std::string_view text) {
        const auto pieces = paragraphs(text);
        for (std::size_t i = 0; i < pieces.size(); ++i)
            if (!setParagraph(pieces[i], i + 1 < pieces.size()))
                break;
        return std::move(layout_);
    }

  private:
    /// Sets one paragraph; false when the last line is used up.
    bool setParagraph(std::string_view paragraph, bool moreFollows) {
        const bool isLastLine = layout_.lines.size() + 1 == maxLines_;
        if (!(isLastLine && moreFollows)) {
            const double whole = width(paragraph);
            if (whole <= maxWidth_) {
                add(paragraph, whole);
                return !isLastLine;
            }
        }
        const auto clusters = measurer_.clusters(paragraph, font_, tracking_);
        const auto breaks = lineBreakOpportunities(paragraph);
        std::size_t start = 0;
        while (layout_.lines.size() + 1 < maxLines_) {
            const std::size_t end = lineEnd(paragraph, start, clusters, breaks);
            const auto line = withoutTrailingSpace(paragraph.substr(start, end - start));
            add(line, width(line));
            start = end;
            if (start == paragraph.size())
                return true;
        }
        const std::string_view rest = paragraph.substr(start);
        const auto line = withoutTrailingSpace(rest);
        const double needed = width(line);
        if (!moreFollows && needed <= maxWidth_)
            add(line, needed);
        else
            addCut(rest, start, clusters);
        return false;
    }

    /// The end of the line that begins at `start`: the last break before which all fits, else the
    /// last cluster that fits, at least one.
    std::size_t lineEnd(std::string_view paragraph,
                        std::size_t start,
                        std::span<const TextCluster> clusters,
                        std::span<const std::size_t> breaks) const {
        std::size_t fitting = start;
        double advance = 0;
        auto next = firstBehind(start, clusters);
        for (; next != clusters.end(); ++next) {
            advance += next->advance;
            const bool isSpace =
                withoutTrailingSpace(paragraph.substr(fitting, next->end - fitting)).empty();
            if (advance > maxWidth_ && !isSpace)
                break;
            fitting = next->end;
        }
        if (fitting == paragraph.size())
            return fitting;
        const auto behind = std::upper_bound(breaks.begin(), breaks.end(), fitting);
        if (behind != breaks.begin() && *(behind - 1) > start)
            return *(behind - 1);
        return fitting > start ? fitting : firstBehind(start, clusters)->end;
    }

    /// Adds as much of the rest of a paragraph as fits with the ellipsis behind it.
    void addCut(std::string_view rest, std::size_t start, std::span<const TextCluster> clusters) {
        const double room = maxWidth_ - width(ellipsis);
        if (room < 0) {
            add("", 0);
            return;
        }
        std::size_t end = start;
        double advance = 0;
        for (auto next = firstBehind(start, clusters); next != clusters.end(); ++next) {
            advance += next->advance;
            if (advance > room)
                break;
            end = next->end;
        }
        std::string line(withoutTrailingSpace(rest.substr(0, end - start)));
        line += ellipsis;
        add(line, width(line));
    }

    std::span<const TextCluster>::iterator firstBehind(
        std::size_t start,
        std::span<const TextCluster> clusters) const {
        return std::upper_bound(
            clusters.begin(), clusters.end(), start,
            [](std::size_t offset, const TextCluster& cluster) { return offset < cluster.end; });
    }

    double width(std::string_view text) const {
        return text.empty() ? 0 : measurer_.width(text, font_, tracking_);
    }

    void add(std::string_view line, double lineWidth) {
        layout_.width = std::max(layout_.width, lineWidth);
        layout_.lines.emplace_back(line);
    }

    const Font& font_;
    double tracking_;
    double maxWidth_;
    std::size_t maxLines_;
    const TextMeasurer& measurer_;
    TextLayout layout_;
};

}  // namespace

TextLayout layOut(std::string_view text,
                  const Font& font,
                  double tracking,
                  double maxWidth,
                  std::size_t maxLines,
                  const TextMeasurer& measurer) {
    if (text.empty() || !(maxWidth > 0))
        return {.lines = {""}, .width = 0};
    Typesetter typesetter(font, tracking, maxWidth, std::max<std::size_t>(maxLines, 1), measurer);
    return text.size() > longestText ? typesetter.set(shortened(text)) : typesetter.set(text);
}

}  // namespace views
