#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QVariant>

#include "window/ShownTable.h"

namespace benchmarks {

/// The texts of a table's first rows, as the table writes them, for a plain table of the toolkit's: a
/// row behind them has the texts of one before. The label colour is the cell's background.
class CellTexts final : public QAbstractTableModel {
 public:
  /// As many as are seen at once.
  static constexpr int kShownRows = 44;

  explicit CellTexts(ShownTable& table);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  int rows;
  int columns;
  /// Row by row.
  QList<QVariant> texts;
  QList<QVariant> backgrounds;
};

}  // namespace benchmarks
