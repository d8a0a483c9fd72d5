#pragma once

#include "platform/canvas/FontFiles.hpp"
#include "platform/canvas/FontLibrary.hpp"

#include <gtest/gtest.h>

/// One library for a whole test program: opening fonts is the slow part of setting texts.
inline canvas::FontLibrary& testFonts() {
    static canvas::FontLibrary fonts;
    return fonts;
}

/// A test of measures needs the faces that they were taken from.
class StandInFontTest : public testing::Test {
  protected:
    void SetUp() override {
        for (const auto design : {views::FontDesign::standard, views::FontDesign::monospaced}) {
            if (!canvas::standInFile(design, views::FontWeight::regular))
                GTEST_SKIP() << canvas::standInFamily(design) << " is not installed";
        }
    }
};
