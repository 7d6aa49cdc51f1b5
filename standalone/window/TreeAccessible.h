#pragma once

#include <QAccessible>
#include <QAccessibleWidget>
#include <unordered_map>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

class TreeWidget;

/// A shown table for assistive programs: its cells are its children, row by row, made when they are
/// asked for. Selecting goes the way of the user's gestures. [main-thread]
class TreeAccessible final : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit TreeAccessible(TreeWidget& widget);
  ~TreeAccessible() override;

  /// The cell at a place, or the name of a column; null when there is none. Made on first demand, and
  /// known for as long as it is among the last ones asked for.
  QAccessibleInterface* FindCell(int row, int column) const;

  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  int indexOfChild(const QAccessibleInterface* cell) const override;
  QAccessibleInterface* focusChild() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QAccessibleInterface* cellAt(int row, int column) const override;
  int selectedCellCount() const override;
  QList<QAccessibleInterface*> selectedCells() const override;
  QString columnDescription(int column) const override;
  QString rowDescription(int) const override { return {}; }
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override;
  int columnCount() const override;
  int rowCount() const override;
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override;
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int row) const override;
  bool selectRow(int row) override;
  bool selectColumn(int) override { return false; }
  bool unselectRow(int row) override;
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

 private:
  bool Toggle(int row);
  void ForgetCells() const;

  TreeWidget& tree;
  /// By FindKey of the place.
  mutable std::unordered_map<qint64, QAccessible::Id> cells;
};

/// Has assistive programs see tables; once is enough.
void InstallTreeAccessible();

/// What of a table changed. Nothing happens while no assistive program listens.
void AnnounceRows(TreeWidget& widget);
void AnnounceSelection(TreeWidget& widget);
void AnnounceCurrentCell(TreeWidget& widget);

}  // namespace standalone
