#include "standalone/toolkit/ThemeColors.h"

#include "standalone/runtime/Runtime.h"

namespace standalone {

namespace {

constexpr qelui::ColorRGBA MakeGrey(float level) {
  return {level, level, level, 1};
}

/// Light text on dark panels, as rooms for editing have it.
constexpr ThemeColors kDarkColors{
    .text = MakeGrey(0.82F),
    .disabledText = MakeGrey(0.46F),
    .divider = MakeGrey(0.28F),
    .tabBackground = MakeGrey(0.16F),
    .rowBackground = MakeGrey(0.13F),
    .otherRowBackground = MakeGrey(0.15F),
    .selection = {0.11F, 0.21F, 0.37F, 1},
    .restingSelection = {0.19F, 0.21F, 0.24F, 1},
    .currentRow = {0.36F, 0.56F, 0.84F, 1},
    .headerBackground = MakeGrey(0.19F),
    .headerText = MakeGrey(0.7F),
    .fieldBackground = MakeGrey(0.11F),
    .accent = {0.3F, 0.53F, 0.85F, 1},
};

constexpr ThemeColors kLightColors{
    .text = MakeGrey(0.12F),
    .disabledText = MakeGrey(0.56F),
    .divider = MakeGrey(0.78F),
    .tabBackground = MakeGrey(0.93F),
    .rowBackground = MakeGrey(0.98F),
    .otherRowBackground = MakeGrey(0.95F),
    .selection = {0.79F, 0.9F, 1, 1},
    .restingSelection = {0.88F, 0.89F, 0.91F, 1},
    .currentRow = {0.16F, 0.43F, 0.77F, 1},
    .headerBackground = MakeGrey(0.9F),
    .headerText = MakeGrey(0.27F),
    .fieldBackground = MakeGrey(1),
    .accent = {0.12F, 0.42F, 0.78F, 1},
};

ThemeName chosen = ThemeName::kDark;

}  // namespace

const ThemeColors& GetColorsOfTheme(ThemeName name) {
  return name == ThemeName::kLight ? kLightColors : kDarkColors;
}

void SetTheme(ThemeName name) {
  AssertMainThread("SetTheme");
  chosen = name;
}

ThemeName GetTheme() {
  AssertMainThread("GetTheme");
  return chosen;
}

const ThemeColors& GetThemeColors() {
  return GetColorsOfTheme(GetTheme());
}

}  // namespace standalone
