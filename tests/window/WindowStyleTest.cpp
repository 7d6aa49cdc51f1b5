#include "standalone/window/WindowStyle.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QRadioButton>
#include <QSlider>

#include "standalone/window/WindowTheme.h"
#include "window/WindowFixture.h"

namespace standalone {
namespace {

class WindowStyleTest : public WindowFixture {
 protected:
  /// How many pixels of a widget's picture are of a colour.
  static int Count(QWidget& widget, const QColor& color) {
    return Picture(widget).CountIf(widget.rect(), [&](const QColor& found) { return found == color; });
  }
};

TEST_F(WindowStyleTest, ACheckBoxHasAnOutlineAndWhenCheckedTheAccentColour) {
  for (const ThemeName name : {ThemeName::kDark, ThemeName::kLight}) {
    const ThemeChoice choice(name);
    ApplyTheme();
    QCheckBox box;
    box.resize(40, 24);
    const QColor accent = ToQColor(GetThemeColors().accent);
    EXPECT_EQ(Count(box, accent), 0);
    EXPECT_GT(Count(box, ToQColor(GetThemeColors().headerText)), 20);
    box.setChecked(true);
    EXPECT_GT(Count(box, accent), 60);
  }
}

TEST_F(WindowStyleTest, ARadioButtonHasAnOutlineAndWhenChosenTheAccentColour) {
  for (const ThemeName name : {ThemeName::kDark, ThemeName::kLight}) {
    const ThemeChoice choice(name);
    ApplyTheme();
    QRadioButton button;
    button.resize(40, 24);
    const QColor accent = ToQColor(GetThemeColors().accent);
    const QImage off = Picture(button).GetImage();
    EXPECT_EQ(Count(button, accent), 0);
    button.setChecked(true);
    EXPECT_GT(Count(button, accent), 30);
    EXPECT_NE(Picture(button).GetImage(), off);
  }
}

TEST_F(WindowStyleTest, ASlidersKnobStandsWhereItsValueIs) {
  ApplyTheme();
  QSlider slider(Qt::Horizontal);
  slider.resize(100, 24);
  const QColor knob = ToQColor(GetThemeColors().headerText);
  slider.setValue(slider.minimum());
  EXPECT_TRUE(Picture(slider).IsAll({5, 11, 3, 3}, knob));
  slider.setValue(slider.maximum());
  EXPECT_TRUE(Picture(slider).IsAll({92, 11, 3, 3}, knob));
  EXPECT_FALSE(Picture(slider).IsAll({5, 11, 3, 3}, knob));
}

}  // namespace
}  // namespace standalone
