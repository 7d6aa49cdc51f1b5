#include "standalone/window/TreePainter.h"

#include "standalone/runtime/Guard.h"
#include "standalone/toolkit/ThemeColors.h"
#include "standalone/toolkit/TreeControl.h"
#include "standalone/window/Colors.h"

namespace standalone {

namespace {

constexpr float kFrameWidth = 1;

const qelui::ColorRGBA& GetBackground(bool isSelected, bool hasFocus, std::size_t position) {
  const ThemeColors& colors = GetThemeColors();
  if (isSelected) return hasFocus ? colors.selection : colors.restingSelection;
  return position % 2 == 0 ? colors.rowBackground : colors.otherRowBackground;
}

qelui::Rect ToRect(const QRect& area) {
  return {static_cast<float>(area.left()), static_cast<float>(area.top()),
          static_cast<float>(area.width()), static_cast<float>(area.height())};
}

}  // namespace

TreePainter::TreePainter(QPainter& painter, const Tree& tree, const ColumnSpans& columns,
                         TextFonts& fonts, const TreeView& view)
    : painter(painter), tree(tree), columns(columns), drawbot(painter, fonts), view(view) {}

void TreePainter::Paint(const QRect& area) {
  painter.translate(0, -view.headerHeight);
  PaintRows(area.translated(0, view.headerHeight));
  painter.translate(0, view.headerHeight);
}

void TreePainter::PaintRows(const QRect& area) {
  QRect rest = area;
  for (const std::size_t position : tree.GetControl().GetVisiblePositions()) {
    const QRect row = FindRow(position);
    if (row.intersects(area)) PaintRow(position, row, area);
    rest.setTop(row.bottom() + 1);
  }
  if (!rest.isEmpty()) painter.fillRect(rest, ToQColor(GetThemeColors().rowBackground));
}

QRect TreePainter::FindRow(std::size_t position) const {
  const auto& control = tree.GetControl();
  const std::int64_t above = control.GetScrollPosition() - view.headerHeight;
  const int top = static_cast<int>(control.GetTop(position) - above);
  const int bottom = static_cast<int>(control.GetTop(position + 1) - above);
  return {0, top, view.viewportWidth, bottom - top};
}

void TreePainter::PaintRow(std::size_t position, const QRect& row, const QRect& area) {
  PaintBackground(position, row);
  // A callback may have removed the rows.
  if (Tree::Row* const shown = tree.GetRow(position)) PaintCells(shown, row, area);
  if (view.hasFocus && tree.GetControl().GetCurrent() == position) PaintCurrentFrame(row);
}

void TreePainter::PaintBackground(std::size_t position, const QRect& row) {
  const bool isSelected = tree.GetControl().IsSelected(position);
  drawbot.FillRect(ToRect(row), GetBackground(isSelected, view.hasFocus, position));
}

void TreePainter::PaintCells(Tree::Row* row, const QRect& rowArea, const QRect& area) {
  for (const ColumnSpan& column : columns.GetShown()) {
    const QRect cell(column.left - view.scrollX, rowArea.top(), column.width, rowArea.height());
    if (!cell.intersects(area)) continue;
    drawbot.Confine(cell);
    CallGuarded("drawing a cell",
                [&] { tree.DrawCellOfRow(drawbot, row, column.displayIndex, ToRect(cell)); });
  }
  drawbot.Unconfine();
}

void TreePainter::PaintCurrentFrame(const QRect& row) {
  drawbot.StrokeRect(ToRect(row), GetThemeColors().currentRow, kFrameWidth);
}

}  // namespace standalone
