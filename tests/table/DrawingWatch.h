#pragma once

#include <memory>
#include <optional>

#include "host/qelui/MultiColumnTree.h"
#include "host/qelui/Theme.h"

/// The calls by which a table draws its cells; install one for a test that runs on one thread. What is
/// empty leaves the host's behaviour as it is.
struct DrawingWatch {
  /// The function that was registered last.
  qelui::controls::UI_MultiColumnTree::SharedDrawCellFunction drawCell;

  /// In place of the host's own.
  std::shared_ptr<const qelui::ui::ThemeProvider> theme;
  std::optional<float> leftInset;

  DrawingWatch() { installed = this; }
  ~DrawingWatch() { installed = nullptr; }
  DrawingWatch(const DrawingWatch&) = delete;
  DrawingWatch& operator=(const DrawingWatch&) = delete;

  inline static DrawingWatch* installed = nullptr;
};
