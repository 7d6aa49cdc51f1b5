#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// The columns of a header row for a header view: names by display index, and no rows. [main-thread]
class STANDALONE_API HeaderModel final : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  /// Takes over the columns of `headerRow`; null: none. Tells the views if something changed.
  void Read(const qelui::controls::UI_MultiColumnTreeHeaderRow* headerRow);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  std::vector<QString> names;
};

}  // namespace standalone
