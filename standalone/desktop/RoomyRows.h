#pragma once

#include <QStyledItemDelegate>

namespace standalone {

/// Rows of a list with air between the lines, as in the tables of the panels.
class RoomyRows final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kAir);
  }

 private:
  static constexpr int kAir = 8;
};

}  // namespace standalone
