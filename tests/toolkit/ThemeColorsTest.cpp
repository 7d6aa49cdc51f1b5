#include "standalone/toolkit/ThemeColors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using qelui::ColorRGBA;
using standalone::GetColorsOfTheme;
using standalone::ThemeColors;
using standalone::ThemeName;

constexpr ColorRGBA kRed{1, 0, 0, 1};
/// What is asked of text, and of marks that a place and a word tell as well.
constexpr double kTextContrast = 4.5;
constexpr double kMarkContrast = 3;

double MakeLinear(float part) {
  return part <= 0.04045F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double GetLuminance(const ColorRGBA& color) {
  return 0.2126 * MakeLinear(color.red) + 0.7152 * MakeLinear(color.green) +
         0.0722 * MakeLinear(color.blue);
}

/// The contrast ratio, from 1 (none) to 21 (black on white).
double GetContrast(const ColorRGBA& one, const ColorRGBA& other) {
  const double first = GetLuminance(one) + 0.05;
  const double second = GetLuminance(other) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

std::vector<ColorRGBA> GetRowBackgrounds(const ThemeColors& colors) {
  return {colors.rowBackground, colors.otherRowBackground, colors.selection, colors.restingSelection};
}

class ThemeColorsOf : public testing::TestWithParam<ThemeName> {
 protected:
  const ThemeColors& colors = GetColorsOfTheme(GetParam());
};

TEST(Contrast, OfBlackOnWhiteIsTheGreatest) {
  EXPECT_NEAR(GetContrast({0, 0, 0, 1}, {1, 1, 1, 1}), 21, 0.001);
  EXPECT_NEAR(GetContrast(kRed, {1, 1, 1, 1}), 4, 0.01);
}

TEST_P(ThemeColorsOf, TextIsLegibleOnEveryRow) {
  for (const ColorRGBA& background : GetRowBackgrounds(colors)) {
    EXPECT_GE(GetContrast(colors.text, background), kTextContrast);
  }
}

TEST_P(ThemeColorsOf, PureRedIsLegibleOnEveryRow) {
  for (const ColorRGBA& background : GetRowBackgrounds(colors)) {
    EXPECT_GE(GetContrast(kRed, background), kMarkContrast);
  }
}

TEST_P(ThemeColorsOf, TextIsLegibleOnPanelsFieldsAndTheHeader) {
  EXPECT_GE(GetContrast(colors.text, colors.tabBackground), kTextContrast);
  EXPECT_GE(GetContrast(colors.text, colors.fieldBackground), kTextContrast);
  EXPECT_GE(GetContrast(colors.headerText, colors.headerBackground), kTextContrast);
}

TEST_P(ThemeColorsOf, DisabledTextIsWeakerThanTextAndStillThere) {
  const double contrast = GetContrast(colors.disabledText, colors.tabBackground);
  EXPECT_LT(contrast, GetContrast(colors.text, colors.tabBackground) / 2);
  EXPECT_GE(contrast, 2.5);
}

TEST_P(ThemeColorsOf, TheFrameOfTheCurrentRowStandsOutFromEveryRow) {
  for (const ColorRGBA& background : GetRowBackgrounds(colors)) {
    EXPECT_GE(GetContrast(colors.currentRow, background), kMarkContrast);
  }
}

TEST_P(ThemeColorsOf, ASelectedRowIsNotTakenForAnother) {
  for (const ColorRGBA& background : {colors.rowBackground, colors.otherRowBackground}) {
    EXPECT_GE(GetContrast(colors.selection, background), 1.1);
    EXPECT_GE(GetContrast(colors.restingSelection, background), 1.1);
  }
  EXPECT_NE(colors.selection, colors.restingSelection);
  EXPECT_NE(colors.rowBackground, colors.otherRowBackground);
}

TEST_P(ThemeColorsOf, EveryColourIsOpaqueAndWithinRange) {
  for (const ColorRGBA& color :
       {colors.text, colors.disabledText, colors.divider, colors.tabBackground, colors.rowBackground,
        colors.otherRowBackground, colors.selection, colors.restingSelection, colors.currentRow,
        colors.headerBackground, colors.headerText, colors.fieldBackground, colors.accent}) {
    EXPECT_EQ(color.alpha, 1);
    for (const float part : {color.red, color.green, color.blue}) {
      EXPECT_GE(part, 0);
      EXPECT_LE(part, 1);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Themes, ThemeColorsOf, testing::Values(ThemeName::kDark, ThemeName::kLight));

TEST(ThemeColors, TheLightThemeIsLightAndTheDarkOneDark) {
  EXPECT_GT(GetLuminance(GetColorsOfTheme(ThemeName::kLight).tabBackground), 0.5);
  EXPECT_LT(GetLuminance(GetColorsOfTheme(ThemeName::kDark).tabBackground), 0.1);
}

}  // namespace
