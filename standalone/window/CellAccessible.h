#pragma once

#include <QAccessibleInterface>
#include <QPointer>
#include <cstddef>

#include "standalone/window/TreeWidget.h"

namespace standalone {

/// A cell of a shown table, or the name of a column, for assistive programs; known by its place.
/// [main-thread]
class CellAccessible final : public QAccessibleInterface, public QAccessibleTableCellInterface {
 public:
  /// The row of the columns' names.
  static constexpr int kHeaderRow = -1;

  CellAccessible(TreeWidget& widget, int row, int column);

  bool isValid() const override;
  QObject* object() const override { return nullptr; }
  QWindow* window() const override;
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  int rowIndex() const override { return row; }
  int columnIndex() const override { return column; }
  int rowExtent() const override { return 1; }
  int columnExtent() const override { return 1; }
  bool isSelected() const override;
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  QList<QAccessibleInterface*> columnHeaderCells() const override;
  QAccessibleInterface* table() const override { return parent(); }

 private:
  std::size_t GetPosition() const { return static_cast<std::size_t>(row); }
  std::size_t GetColumn() const { return static_cast<std::size_t>(column); }
  QString GetColumnName() const;
  bool IsFocused() const;

  QPointer<TreeWidget> widget;
  int row;
  int column;
};

}  // namespace standalone
