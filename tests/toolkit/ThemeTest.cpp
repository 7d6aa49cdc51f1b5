#include "host/qelui/Theme.h"

#include <gtest/gtest.h>

#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/ThemeColors.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelui::ColorRGBA;
using qelui::skins::utilities::GetDefaultTextColor;
using qelui::skins::utilities::GetDividerColor;
using qelui::skins::utilities::GetTabBackgroundColor;
using qelui::ui::GetDefaultThemeProvider;
using qelui::ui::GetFontName;

class Theme : public testing::Test {
 private:
  standalone::Runtime runtime;
};

TEST_F(Theme, ThereIsAlwaysOne) {
  ASSERT_NE(GetDefaultThemeProvider(), nullptr);
  EXPECT_EQ(GetDefaultThemeProvider(), GetDefaultThemeProvider());
}

TEST_F(Theme, ItsTextIsOpaqueAndNotTheRedOfMarks) {
  const ColorRGBA color = GetDefaultTextColor(*GetDefaultThemeProvider());
  EXPECT_EQ(color.alpha, 1);
  EXPECT_EQ(color.red, color.green);
  for (const float part : {color.red, color.green, color.blue}) {
    EXPECT_GE(part, 0);
    EXPECT_LE(part, 1);
  }
}

class BlueTheme final : public qelui::ui::ThemeProvider {
 public:
  ColorRGBA GetTextColor() const override { return {0, 0, 1, 0.5F}; }
  ColorRGBA GetDividerColor() const override { return {0, 0, 1, 0.25F}; }
  ColorRGBA GetTabBackgroundColor() const override { return {0, 0, 1, 0.125F}; }
};

TEST_F(Theme, TheDefaultTextColourIsTheGivenThemes) {
  EXPECT_EQ(GetDefaultTextColor(BlueTheme()), (ColorRGBA{0, 0, 1, 0.5F}));
}

TEST_F(Theme, TheDividerAndTheBackgroundOfAPanelAreTheGivenThemes) {
  EXPECT_EQ(GetDividerColor(BlueTheme()), (ColorRGBA{0, 0, 1, 0.25F}));
  EXPECT_EQ(GetTabBackgroundColor(BlueTheme()), (ColorRGBA{0, 0, 1, 0.125F}));
}

/// Puts the theme back that there was.
class ChosenTheme : public Theme {
 protected:
  ~ChosenTheme() override { standalone::SetTheme(before); }

 private:
  standalone::ThemeName before = standalone::GetTheme();
};

TEST_F(ChosenTheme, IsDarkAtFirst) {
  EXPECT_EQ(standalone::GetTheme(), standalone::ThemeName::kDark);
  EXPECT_EQ(GetDefaultTextColor(*GetDefaultThemeProvider()), (ColorRGBA{0.82F, 0.82F, 0.82F, 1}));
}

TEST_F(ChosenTheme, IsTheOneThatModulesAskFor) {
  for (const auto name : {standalone::ThemeName::kLight, standalone::ThemeName::kDark}) {
    standalone::SetTheme(name);
    const auto& colors = standalone::GetThemeColors();
    const auto theme = GetDefaultThemeProvider();
    EXPECT_EQ(GetDefaultTextColor(*theme), colors.text);
    EXPECT_EQ(GetDividerColor(*theme), colors.divider);
    EXPECT_EQ(GetTabBackgroundColor(*theme), colors.tabBackground);
  }
}

TEST_F(ChosenTheme, AThemeHeldKeepsItsColoursWhenAnotherIsChosen) {
  const auto dark = GetDefaultThemeProvider();
  standalone::SetTheme(standalone::ThemeName::kLight);
  EXPECT_NE(GetDefaultThemeProvider(), dark);
  EXPECT_EQ(GetDefaultTextColor(*dark), (ColorRGBA{0.82F, 0.82F, 0.82F, 1}));
}

TEST_F(Theme, FontZeroIsThatOfPlainTextAndOthersHaveNoName) {
  EXPECT_EQ(GetFontName(0), "Sans");
  EXPECT_TRUE(GetFontName(1).Empty());
  EXPECT_TRUE(GetFontName(0xFFFFFFFFU).Empty());
}

TEST_F(Theme, ControlsHaveTheLookOfTheSeventhGeneration) {
  EXPECT_TRUE(qelui::skins::IsRunningV7OrBeyond());
}

TEST_F(Theme, IsAskedForOnTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(GetDefaultThemeProvider(), "GetDefaultThemeProvider");
  EXPECT_STOPS_OFF_MAIN_THREAD(GetFontName(0), "GetFontName");
  EXPECT_STOPS_OFF_MAIN_THREAD(standalone::SetTheme(standalone::ThemeName::kDark), "SetTheme");
  EXPECT_STOPS_OFF_MAIN_THREAD(standalone::GetThemeColors(), "GetTheme");
}

}  // namespace
