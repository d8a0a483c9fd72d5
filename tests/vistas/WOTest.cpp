#include "vistas/WO.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

namespace nurva {
namespace {

using views::Color;

TEST(WO, HasItsSevenColours) {
    const std::vector<std::pair<Color, std::uint32_t>> colores{
        {WO::fondo, 0x16191B},  {WO::texto, 0xE8EBEC}, {WO::texto2, 0x98A0A4},
        {WO::texto3, 0x666E72}, {WO::ambar, 0xF2B34C}, {WO::control, 0x1F2326},
        {WO::filete, 0x2A2F33},
    };
    const auto byte = [](double componente) {
        return static_cast<std::uint32_t>(std::lround(componente * 255));
    };
    for (const auto& [color, hex] : colores) {
        EXPECT_EQ(byte(color.red) << 16 | byte(color.green) << 8 | byte(color.blue), hex);
        EXPECT_EQ(color.alpha, 1);
    }
    EXPECT_EQ(WO::texto, (Color{0.91, 0.922, 0.925, 1}));
}

TEST(WO, StartsWithItsOwnGreenAsAccent) {
    EXPECT_EQ(WO::acentoHexInicial, 6087834u);
    WO::acentoHex = WO::acentoHexInicial;
    EXPECT_EQ(WO::acento(), (Color{92 / 255.0, 228 / 255.0, 154 / 255.0, 1}));
}

TEST(WO, DerivesTheAccentAnewOnEveryUse) {
    WO::acentoHex = 0xFF0000;
    EXPECT_EQ(WO::acento(), (Color{1, 0, 0}));
    WO::acentoHex = 0x0000FF;
    EXPECT_EQ(WO::acento(), (Color{0, 0, 1}));
    WO::acentoHex = 0;
    EXPECT_EQ(WO::acento(), (Color{0, 0, 0}));
}

TEST(WO, IgnoresTheHighByteOfTheAccent) {
    WO::acentoHex = 0x123456;
    const Color sin = WO::acento();
    for (const std::uint32_t alto : {0x01000000u, 0x80000000u, 0xFF000000u}) {
        WO::acentoHex = alto | 0x123456;
        EXPECT_EQ(WO::acento(), sin);
    }
}

}  // namespace
}  // namespace nurva
