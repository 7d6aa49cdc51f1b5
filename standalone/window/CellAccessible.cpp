#include "standalone/window/CellAccessible.h"

#include <QWindow>

#include "standalone/toolkit/TreeControl.h"
#include "standalone/window/CellDescription.h"
#include "standalone/window/TreeAccessible.h"
#include "standalone/window/Utf8.h"

namespace standalone {

CellAccessible::CellAccessible(TreeWidget& widget, int row, int column)
    : widget(&widget), row(row), column(column) {}

bool CellAccessible::isValid() const {
  const auto tree = widget ? widget->GetTree() : nullptr;
  if (!tree || GetColumn() >= widget->GetColumns().GetShown().size()) return false;
  return row == kHeaderRow || GetPosition() < tree->CountRows();
}

QWindow* CellAccessible::window() const {
  return widget ? widget->window()->windowHandle() : nullptr;
}

QAccessibleInterface* CellAccessible::parent() const {
  return QAccessible::queryAccessibleInterface(widget);
}

QString CellAccessible::GetColumnName() const {
  const auto headerRow = widget->GetTree()->GetHeaderRow();
  const auto name = headerRow->GetColumnNameUTF8(widget->GetColumns().GetShown()[GetColumn()].id);
  return ToQString(name.View());
}

QString CellAccessible::text(QAccessible::Text kind) const {
  if (kind != QAccessible::Name || !isValid()) return {};
  if (row == kHeaderRow) return GetColumnName();
  const ColumnSpan span = widget->GetColumns().GetShown()[GetColumn()];
  return DescribeCell(*widget->GetTree(), GetPosition(), span.displayIndex);
}

QRect CellAccessible::rect() const {
  if (!isValid()) return {};
  const QWidget& surface = *widget->viewport();
  if (row != kHeaderRow) {
    const QRect area = widget->GetCellArea(GetPosition(), GetColumn());
    return {surface.mapToGlobal(area.topLeft()), area.size()};
  }
  const ColumnSpan span = widget->GetColumns().GetShown()[GetColumn()];
  const TreeHeader& header = widget->GetHeader();
  return {header.mapToGlobal(QPoint(span.left - header.offset(), 0)),
          QSize(span.width, header.height())};
}

QAccessible::Role CellAccessible::role() const {
  return row == kHeaderRow ? QAccessible::ColumnHeader : QAccessible::Cell;
}

bool CellAccessible::isSelected() const {
  return row != kHeaderRow && isValid() && widget->GetTree()->GetControl().IsSelected(GetPosition());
}

bool CellAccessible::IsFocused() const {
  return widget->hasFocus() && widget->GetCurrentColumn() == GetColumn() &&
         widget->GetTree()->GetControl().GetCurrent() == GetPosition();
}

QAccessible::State CellAccessible::state() const {
  QAccessible::State state;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  state.readOnly = true;
  if (row == kHeaderRow) return state;
  const auto tree = widget->GetTree();
  state.selectable = true;
  state.focusable = true;
  state.multiSelectable = tree->GetControl().SupportsMultipleSelections();
  state.selected = isSelected();
  state.focused = IsFocused();
  const QRect area = widget->GetCellArea(GetPosition(), GetColumn());
  state.offscreen = !area.intersects(widget->viewport()->rect());
  return state;
}

void* CellAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type != QAccessible::TableCellInterface) return nullptr;
  return static_cast<QAccessibleTableCellInterface*>(this);
}

QList<QAccessibleInterface*> CellAccessible::columnHeaderCells() const {
  auto* const table = dynamic_cast<TreeAccessible*>(parent());
  if (table == nullptr || row == kHeaderRow) return {};
  return {table->FindCell(kHeaderRow, column)};
}

}  // namespace standalone
