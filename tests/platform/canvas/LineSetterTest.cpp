#include "platform/canvas/FontSource.hpp"
#include "platform/canvas/LineSetter.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace canvas {
namespace {

void expectNothingSet(const FontSource& source) {
    const std::string text = "año ש 🎵";
    const LineSet set = setLine(source, drawableText(text, text.size()), views::Font{}, 0.9);
    EXPECT_FALSE(set.complete);
    EXPECT_TRUE(set.line.runs.empty());
    EXPECT_EQ(set.line.width, 0);
    ASSERT_FALSE(set.line.clusters.empty());
    EXPECT_EQ(set.line.clusters.back().end, text.size());
}

TEST(LineSetter, SetsNothingInAFileThatIsNotThere) {
    const support::TemporaryFolder folder;
    expectNothingSet(FontSource::only((folder.path() / "Inter-Regular.otf").string()));
}

TEST(LineSetter, SetsNothingWhereThereAreNoFonts) {
    expectNothingSet(FontSource(FcConfigHandle(FcConfigCreate())));
}

TEST(LineSetter, SetsNothingInAFileThatIsNoFont) {
    const support::TemporaryFolder folder;
    const auto file = folder.path() / "Inter-Regular.otf";
    std::ofstream(file) << "no font";
    expectNothingSet(FontSource::only(file.string()));
}

}  // namespace
}  // namespace canvas
