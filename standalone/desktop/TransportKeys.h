#pragma once

#include <QKeyEvent>

namespace standalone {

/// Whether a key press is one of the letters and the space bar that play and stop, wherever the focus
/// is but in a text. Lists would search for them.
inline bool IsPlaybackKey(const QKeyEvent& event) {
  if (event.modifiers() != Qt::NoModifier && event.modifiers() != Qt::ShiftModifier) return false;
  return event.key() == Qt::Key_J || event.key() == Qt::Key_K || event.key() == Qt::Key_L ||
         event.key() == Qt::Key_Space;
}

}  // namespace standalone
