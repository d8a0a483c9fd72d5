#include "platform/views/layout/Proposal.hpp"
#include "platform/views/text/TextLayout.hpp"
#include "support/FixedTextMeasurer.hpp"

#include <gtest/gtest.h>

#include <string>

namespace views {
namespace {

constexpr Font font{.size = 10};
constexpr std::size_t megabyte = std::size_t{1} << 20;

/// Counts the bytes of the texts it is asked about.
class CountingMeasurer : public support::FixedTextMeasurer {
  public:
    double width(std::string_view text, const Font& asked, double tracking) const override {
        bytes_ += text.size();
        return FixedTextMeasurer::width(text, asked, tracking);
    }
    std::vector<TextCluster> clusters(std::string_view text,
                                      const Font& asked,
                                      double tracking) const override {
        bytes_ += text.size();
        return FixedTextMeasurer::clusters(text, asked, tracking);
    }
    std::size_t bytes() const { return bytes_; }

  private:
    mutable std::size_t bytes_ = 0;
};

std::string repeated(std::string_view piece) {
    std::string text;
    while (text.size() < megabyte)
        text += piece;
    return text;
}

const std::string longTexts[] = {
    repeated("a"),  repeated("uno dos "), repeated("\u0301"),       "e" + repeated("\u0301"),
    repeated(" "),  repeated("\n"),       repeated("a\n"),          repeated("音"),
    repeated("-a"), repeated("\x80"),     repeated("\u202E\u200B"),
};

TEST(LongText, IsLookedAtOnlyInItsBeginning) {
    for (const std::string& text : longTexts)
        for (const double width : {1.0, 50.0, 340.0, infinity})
            for (const std::size_t lines : {std::size_t{1}, std::size_t{2}, anyNumberOfLines}) {
                const CountingMeasurer measurer;
                const TextLayout layout = layOut(text, font, 0, width, lines, measurer);
                EXPECT_LE(measurer.bytes(), 12 * longestText) << text.substr(0, 8) << width;
                EXPECT_LE(layout.lines.size(), std::min(lines, longestText + 1));
            }
}

TEST(LongText, EndsInAnEllipsisWhereItIsCut) {
    for (const std::string piece : {"a", "uno dos ", "a\n", "音"}) {
        const std::string text = repeated(piece);
        for (const double width : {50.0, 340.0, infinity})
            for (const std::size_t lines : {std::size_t{1}, std::size_t{2}, anyNumberOfLines})
                EXPECT_TRUE(layOut(text, font, 0, width, lines, support::FixedTextMeasurer())
                                .lines.back()
                                .ends_with("…"))
                    << piece << " in " << width << ", lines " << lines;
    }
}

TEST(LongText, IsNotCutInsideACharacter) {
    for (std::size_t before = 0; before < 4; ++before) {
        const std::string text = std::string(before, 'a') + repeated("音");
        const std::string line =
            layOut(text, font, 0, infinity, 1, support::FixedTextMeasurer()).lines[0];
        EXPECT_EQ((line.size() - before) % 3, 0u);
        EXPECT_GT(line.size(), longestText - 4);
    }
}

TEST(LongText, OfExactlyTheLookedAtLengthIsWhole) {
    const std::string text = "b" + std::string(longestText - 1, 'a');
    EXPECT_EQ(layOut(text, font, 0, infinity, 1, support::FixedTextMeasurer()).lines[0], text);
    EXPECT_EQ(layOut(text + "a", font, 0, infinity, 1, support::FixedTextMeasurer()).lines[0],
              text + "…");
}

}  // namespace
}  // namespace views
