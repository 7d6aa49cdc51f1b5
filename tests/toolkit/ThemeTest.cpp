#include "host/qelui/Theme.h"

#include <gtest/gtest.h>

#include "standalone/runtime/Runtime.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelui::ColorRGBA;
using qelui::skins::utilities::GetDefaultTextColor;
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
};

TEST_F(Theme, TheDefaultTextColourIsTheGivenThemes) {
  EXPECT_EQ(GetDefaultTextColor(BlueTheme()), (ColorRGBA{0, 0, 1, 0.5F}));
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
}

}  // namespace
