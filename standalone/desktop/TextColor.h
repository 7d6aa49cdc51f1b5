#pragma once

#include <QColor>

namespace standalone {

/// Black or white, whichever is easier to read on a colour (relative luminance after ITU-R BT.709).
inline QColor FindTextColor(const QColor& background) {
  const double light =
      0.2126 * background.redF() + 0.7152 * background.greenF() + 0.0722 * background.blueF();
  return light > 0.5 ? QColor(Qt::black) : QColor(Qt::white);
}

}  // namespace standalone
