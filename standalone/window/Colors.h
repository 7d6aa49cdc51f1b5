#pragma once

#include <QColor>
#include <algorithm>

#include "host/qelui/Geometry.h"

namespace standalone {

/// The nearest colour that a window can show; what is no number counts as 0.
inline QColor ToQColor(const qelui::ColorRGBA& color) {
  const auto part = [](float level) {
    return level > 0 ? static_cast<int>(std::min(level, 1.0F) * 255 + 0.5F) : 0;
  };
  return {part(color.red), part(color.green), part(color.blue), part(color.alpha)};
}

}  // namespace standalone
