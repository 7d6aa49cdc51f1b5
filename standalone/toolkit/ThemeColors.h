#pragma once

#include "host/qelui/Theme.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

enum class ThemeName { kDark, kLight };

/// The colours of a theme, each opaque. On rowBackground, otherRowBackground and selection, the text
/// colour and pure red are both legible.
struct ThemeColors {
  qelui::ColorRGBA text;
  qelui::ColorRGBA disabledText;
  qelui::ColorRGBA divider;
  qelui::ColorRGBA tabBackground;
  qelui::ColorRGBA rowBackground;
  /// Of every second row.
  qelui::ColorRGBA otherRowBackground;
  qelui::ColorRGBA selection;
  /// Of selected rows while the table has no keyboard focus.
  qelui::ColorRGBA restingSelection;
  /// The frame around the row that keys start from.
  qelui::ColorRGBA currentRow;
  qelui::ColorRGBA headerBackground;
  qelui::ColorRGBA headerText;
  /// Of fields and buttons.
  qelui::ColorRGBA fieldBackground;
  qelui::ColorRGBA accent;
};

/// [any-thread]
STANDALONE_API const ThemeColors& GetColorsOfTheme(ThemeName name);

/// The theme that the user chose; dark at first. Choosing tells nobody: whoever lets the user choose
/// has every control drawn anew. [main-thread]
STANDALONE_API void SetTheme(ThemeName name);
STANDALONE_API ThemeName GetTheme();
STANDALONE_API const ThemeColors& GetThemeColors();

}  // namespace standalone
