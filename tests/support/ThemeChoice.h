#pragma once

#include "standalone/toolkit/ThemeColors.h"

namespace standalone {

/// The theme is the process's; tests leave the one that it starts with.
class ThemeChoice {
 public:
  explicit ThemeChoice(ThemeName name) { SetTheme(name); }
  ~ThemeChoice() { SetTheme(ThemeName::kDark); }
  ThemeChoice(const ThemeChoice&) = delete;
  ThemeChoice& operator=(const ThemeChoice&) = delete;
};

}  // namespace standalone
