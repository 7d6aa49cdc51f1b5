#include "standalone/window/TreeAccessible.h"

#include <algorithm>
#include <limits>

#include "host/qelui/Events.h"
#include "standalone/toolkit/TreeControl.h"
#include "standalone/window/CellAccessible.h"
#include "standalone/window/TreeWidget.h"

namespace standalone {

namespace {

/// As many cells as a few screens show; whoever reads on gets new ones.
constexpr std::size_t kMostCells = 4096;

qint64 FindKey(int row, int column) {
  return (static_cast<qint64>(row) << 32) | static_cast<quint32>(column);
}

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  auto* const widget = dynamic_cast<TreeWidget*>(object);
  return widget == nullptr ? nullptr : new TreeAccessible(*widget);
}

int ToCount(std::size_t count) {
  constexpr std::size_t kMost = std::numeric_limits<int>::max();
  return static_cast<int>(std::min(count, kMost));
}

}  // namespace

TreeAccessible::TreeAccessible(TreeWidget& widget)
    : QAccessibleWidget(&widget, QAccessible::Table), tree(widget) {}

TreeAccessible::~TreeAccessible() {
  ForgetCells();
}

void TreeAccessible::ForgetCells() const {
  for (const auto& [key, id] : cells) QAccessible::deleteAccessibleInterface(id);
  cells.clear();
}

QAccessibleInterface* TreeAccessible::FindCell(int row, int column) const {
  const bool isPlace =
      row >= CellAccessible::kHeaderRow && row < rowCount() && column >= 0 && column < columnCount();
  if (!isPlace) return nullptr;
  const qint64 key = FindKey(row, column);
  if (const auto found = cells.find(key); found != cells.end()) {
    return QAccessible::accessibleInterface(found->second);
  }
  // Names of columns are few, and a cell asks for its own: that must not cost it its life.
  if (row != CellAccessible::kHeaderRow && cells.size() >= kMostCells) ForgetCells();
  auto* const cell = new CellAccessible(tree, row, column);
  cells.emplace(key, QAccessible::registerAccessibleInterface(cell));
  return cell;
}

int TreeAccessible::rowCount() const {
  const auto shown = tree.GetTree();
  return shown ? ToCount(shown->CountRows()) : 0;
}

int TreeAccessible::columnCount() const {
  return ToCount(tree.GetColumns().GetShown().size());
}

int TreeAccessible::childCount() const {
  const auto rows = static_cast<std::size_t>(rowCount());
  return ToCount(rows * static_cast<std::size_t>(columnCount()));
}

QAccessibleInterface* TreeAccessible::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  return FindCell(index / columnCount(), index % columnCount());
}

QAccessibleInterface* TreeAccessible::cellAt(int row, int column) const {
  return row < 0 ? nullptr : FindCell(row, column);
}

QAccessibleInterface* TreeAccessible::childAt(int x, int y) const {
  const QWidget& surface = *tree.viewport();
  const QPoint point = surface.mapFromGlobal(QPoint(x, y));
  const auto shown = tree.GetTree();
  if (!shown || !surface.rect().contains(point)) return nullptr;
  const auto& control = shown->GetControl();
  const auto position = control.FindPositionAt(control.GetScrollPosition() + point.y());
  const auto column = tree.GetColumns().FindAt(point.x() + tree.GetHeader().offset());
  if (!position || !column) return nullptr;
  return FindCell(ToCount(*position), ToCount(*column));
}

int TreeAccessible::indexOfChild(const QAccessibleInterface* cell) const {
  const auto* const known = dynamic_cast<const CellAccessible*>(cell);
  if (known == nullptr || known->rowIndex() == CellAccessible::kHeaderRow) return -1;
  return known->rowIndex() * columnCount() + known->columnIndex();
}

QAccessibleInterface* TreeAccessible::focusChild() const {
  const auto shown = tree.GetTree();
  const auto current = shown ? shown->GetControl().GetCurrent() : std::nullopt;
  if (!current) return nullptr;
  return FindCell(ToCount(*current), ToCount(tree.GetCurrentColumn()));
}

QAccessible::State TreeAccessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  const auto shown = tree.GetTree();
  state.multiSelectable = shown && shown->GetControl().SupportsMultipleSelections();
  return state;
}

void* TreeAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QString TreeAccessible::columnDescription(int column) const {
  const auto* const name = FindCell(CellAccessible::kHeaderRow, column);
  return name == nullptr ? QString() : name->text(QAccessible::Name);
}

int TreeAccessible::selectedRowCount() const {
  const auto shown = tree.GetTree();
  return shown ? ToCount(shown->GetControl().CountSelected()) : 0;
}

QList<int> TreeAccessible::selectedRows() const {
  QList<int> positions;
  const auto shown = tree.GetTree();
  if (!shown) return positions;
  for (const auto* row : shown->GetSelectedRows()) positions.append(ToCount(shown->GetRowIndex(row)));
  return positions;
}

int TreeAccessible::selectedCellCount() const {
  return selectedRowCount() * columnCount();
}

// At most as many as are known at a time: whoever selected a million rows asks for the rows.
QList<QAccessibleInterface*> TreeAccessible::selectedCells() const {
  QList<QAccessibleInterface*> found;
  // Those found first must still be known when the last is.
  if (cells.size() > kMostCells / 2) ForgetCells();
  for (const int row : selectedRows()) {
    for (int column = 0; column < columnCount(); ++column) {
      if (static_cast<std::size_t>(found.size()) >= kMostCells / 2) return found;
      found.append(FindCell(row, column));
    }
  }
  return found;
}

bool TreeAccessible::isRowSelected(int row) const {
  const auto shown = tree.GetTree();
  return shown && row >= 0 && row < rowCount() &&
         shown->GetControl().IsSelected(static_cast<std::size_t>(row));
}

bool TreeAccessible::Toggle(int row) {
  const auto shown = tree.GetTree();
  if (!shown || row < 0 || row >= rowCount()) return false;
  shown->GetControl().Click(static_cast<std::size_t>(row), qelui::ui::kModifierControl);
  return true;
}

bool TreeAccessible::selectRow(int row) {
  return isRowSelected(row) || Toggle(row);
}

bool TreeAccessible::unselectRow(int row) {
  return isRowSelected(row) && Toggle(row);
}

void InstallTreeAccessible() {
  [[maybe_unused]] static const bool isInstalled = [] {
    QAccessible::installFactory(MakeInterface);
    return true;
  }();
}

void AnnounceRows(TreeWidget& widget) {
  if (!QAccessible::isActive()) return;
  QAccessibleTableModelChangeEvent event(&widget, QAccessibleTableModelChangeEvent::ModelReset);
  QAccessible::updateAccessibility(&event);
}

void AnnounceSelection(TreeWidget& widget) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&widget, QAccessible::SelectionWithin);
  QAccessible::updateAccessibility(&event);
}

void AnnounceCurrentCell(TreeWidget& widget) {
  if (!QAccessible::isActive() || !widget.hasFocus()) return;
  auto* const table = dynamic_cast<TreeAccessible*>(QAccessible::queryAccessibleInterface(&widget));
  const auto* const cell = table == nullptr ? nullptr : table->focusChild();
  if (cell == nullptr) return;
  QAccessibleEvent event(&widget, QAccessible::Focus);
  event.setChild(table->indexOfChild(cell));
  QAccessible::updateAccessibility(&event);
}

}  // namespace standalone
