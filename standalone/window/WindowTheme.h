#pragma once

#include <QPalette>

#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/toolkit/ThemeColors.h"

namespace standalone {

/// The colours of a theme for widgets of the window system.
STANDALONE_API QPalette MakePalette(const ThemeColors& colors);

/// Has all widgets drawn anew in the theme that the user chose. [main-thread]
STANDALONE_API void ApplyTheme();

}  // namespace standalone
