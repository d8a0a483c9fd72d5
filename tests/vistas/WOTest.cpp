#include "vistas/WO.hpp"

#include <gtest/gtest.h>

#include <cstdint>

namespace nurva {
namespace {

using views::Color;

/// The accent as the process starts with it, before any test draws a face.
const std::uint32_t acentoAlEmpezar = WO::acentoHex;

TEST(WO, HasItsSevenColours) {
    EXPECT_EQ(WO::fondo, (Color{0.086, 0.098, 0.106, 1}));
    EXPECT_EQ(WO::texto, (Color{0.91, 0.922, 0.925, 1}));
    EXPECT_EQ(WO::texto2, (Color{0.596, 0.627, 0.643, 1}));
    EXPECT_EQ(WO::texto3, (Color{0.4, 0.431, 0.447, 1}));
    EXPECT_EQ(WO::ambar, (Color{0.949, 0.702, 0.298, 1}));
    EXPECT_EQ(WO::control, (Color{0.122, 0.137, 0.149, 1}));
    EXPECT_EQ(WO::filete, (Color{0.165, 0.184, 0.2, 1}));
}

TEST(WO, StartsWithItsOwnGreenAsAccent) {
    EXPECT_EQ(acentoAlEmpezar, 0x5CE49Au);
    EXPECT_EQ(WO::acentoHexInicial, 0x5CE49Au);
    WO::acentoHex = acentoAlEmpezar;
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
