#include "platform/views/Laid.hpp"
#include "platform/views/controls/Image.hpp"
#include "platform/views/symbols/SymbolArtwork.hpp"

#include <gtest/gtest.h>

namespace views {
namespace {

constexpr Color amber{0.9, 0.7, 0.3};

TEST(Image, HasTheSizeOfItsArtworkInItsFont) {
    for (const char* name : {"plus", "minus", "speaker.wave.2.fill", "speaker.slash.fill"})
        for (const FontWeight weight : {regular, medium, semibold, bold}) {
            const Size em = symbolArtwork(name, weight)->bounds;
            const View image = Image::systemName(name).font({.size = 9, .weight = weight});
            for (const Proposal& offer : {Proposal{}, {100, 100}, {0, 0}})
                EXPECT_EQ(sizeOf(image, offer), (Size{em.width * 9, em.height * 9})) << name;
        }
}

TEST(Image, IsDrawnInItsFontAndColour) {
    const Font font{.size = 9, .weight = bold};
    const View image = Image::systemName("plus").font(font).foregroundStyle(amber);
    const Size size = sizeOf(image, {});
    EXPECT_EQ(drawn(image.frame({.width = 22, .height = 22}), {}).drawing,
              (std::vector<Command>{DrawSymbol{
                  "plus",
                  {(22 - size.width) / 2, (22 - size.height) / 2, size.width, size.height},
                  font,
                  amber}}));
}

TEST(Image, HasItsMiddleAtTheMiddleOfTheCapitals) {
    const Font font{.size = 10};
    const View image = Image::systemName("speaker.wave.2.fill").font(font);
    EXPECT_DOUBLE_EQ(baselineOf(image, {}), sizeOf(image, {}).height / 2 + 3.52);
}

TEST(Image, OfAnUnknownNameIsNothing) {
    const View image = Image::systemName("unicornio");
    EXPECT_EQ(sizeOf(image, {100, 100}), (Size{0, 0}));
    EXPECT_EQ(drawn(image, {100, 100}).drawing, std::vector<Command>{});
}

}  // namespace
}  // namespace views
