#pragma once

#include <QStyledItemDelegate>
#include <QTreeView>

namespace standalone {

/// Rows of a list with air between the lines, as in the tables of the panels.
class RoomyRows final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem sized(option);
    const auto* const tree = qobject_cast<const QTreeView*>(option.widget);
    // Trees don't say how wide a cell is. Texts of the first column are broken at its width.
    if (tree != nullptr && index.column() == 0)
      sized.rect = {0, 0, tree->columnWidth(0) - FindIndent(*tree, index), 1};
    return QStyledItemDelegate::sizeHint(sized, index) + QSize(0, kAir);
  }

 private:
  static constexpr int kAir = 8;

  static int FindIndent(const QTreeView& tree, const QModelIndex& index) {
    int depth = tree.rootIsDecorated() ? 1 : 0;
    for (auto parent = index.parent(); parent.isValid(); parent = parent.parent()) ++depth;
    return depth * tree.indentation();
  }
};

}  // namespace standalone
