#pragma once

#include <QPainter>
#include <QRect>
#include <cstddef>

#include "host/qelui/MultiColumnTree.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/ColumnSpans.h"
#include "standalone/window/PainterDrawbot.h"
#include "standalone/window/TextFonts.h"

namespace standalone {

/// What of a table a window shows, and how.
struct TreeView {
  /// Pixels of the columns that lie left of the viewport.
  int scrollX = 0;
  /// Pixels between the control's top and the viewport's.
  int headerHeight = 0;
  int viewportWidth = 0;
  bool hasFocus = false;
};

/// Draws the rows of a table into its viewport: backgrounds itself, each cell by the table's callback.
/// Takes time for what is seen, not for the table. A cell that fails is left empty and the failure
/// logged. [main-thread]
class STANDALONE_API TreePainter {
 public:
  using Tree = qelui::controls::UI_MultiColumnTree;

  /// All must outlive the painter; the painter's origin is the viewport's top left corner.
  TreePainter(QPainter& painter, const Tree& tree, const ColumnSpans& columns, TextFonts& fonts,
              const TreeView& view);

  /// Draws what lies in `area`, all of it, in pixels of the viewport.
  void Paint(const QRect& area);

 private:
  // In pixels of the control, whose top is the header row's.
  void PaintRows(const QRect& area);
  QRect FindRow(std::size_t position) const;
  void PaintRow(std::size_t position, const QRect& row, const QRect& area);
  void PaintBackground(std::size_t position, const QRect& row);
  void PaintCells(Tree::Row* row, const QRect& rowArea, const QRect& area);
  void PaintCurrentFrame(const QRect& row);

  QPainter& painter;
  const Tree& tree;
  const ColumnSpans& columns;
  PainterDrawbot drawbot;
  TreeView view;
};

}  // namespace standalone
