#include "standalone/window/WindowTheme.h"

#include <gtest/gtest.h>

#include <cmath>

#include "window/WindowFixture.h"

namespace standalone {
namespace {

class Themes : public WindowFixture {};

TEST_F(Themes, WidgetsTakeTheColoursOfTheTheme) {
  for (const ThemeName name : {ThemeName::kDark, ThemeName::kLight}) {
    const ThemeChoice choice(name);
    ApplyTheme();
    const ThemeColors& colors = GetThemeColors();
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(palette.color(QPalette::Window), ToQColor(colors.tabBackground));
    EXPECT_EQ(palette.color(QPalette::WindowText), ToQColor(colors.text));
    EXPECT_EQ(palette.color(QPalette::Base), ToQColor(colors.fieldBackground));
    EXPECT_EQ(palette.color(QPalette::Button), ToQColor(colors.fieldBackground));
    EXPECT_EQ(palette.color(QPalette::Highlight), ToQColor(colors.selection));
    EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Text), ToQColor(colors.disabledText));
  }
}

TEST_F(Themes, AnotherThemeDrawsTheTableAnew) {
  const auto tree = MakeTree(3);
  const auto widget = Show(tree);
  ApplyTheme();
  const QRect below(350, 150, 20, 20);
  EXPECT_TRUE(Picture(*widget).IsAll(below, ToQColor(GetThemeColors().rowBackground)));
  const ThemeChoice choice(ThemeName::kLight);
  ApplyTheme();
  EXPECT_TRUE(Picture(*widget).IsAll(below, ToQColor(GetThemeColors().rowBackground)));
}

TEST_F(Themes, ColoursThatAreNoneAreBlack) {
  EXPECT_EQ(ToQColor({-1, std::nanf(""), 2, 1}), QColor(0, 0, 255));
}

}  // namespace
}  // namespace standalone
