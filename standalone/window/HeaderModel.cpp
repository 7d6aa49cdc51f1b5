#include "standalone/window/HeaderModel.h"
#include "standalone/window/Utf8.h"

#include <utility>

namespace standalone {

namespace {

std::vector<QString> ReadNames(const qelui::controls::UI_MultiColumnTreeHeaderRow* headerRow) {
  std::vector<QString> names;
  if (headerRow == nullptr) return names;
  for (std::size_t i = 0; i < headerRow->GetCountOfColumns(); ++i) {
    const auto name = headerRow->GetColumnNameUTF8(headerRow->GetColumnAt(i));
    names.push_back(ToQString(name.View()));
  }
  return names;
}

}  // namespace

void HeaderModel::Read(const qelui::controls::UI_MultiColumnTreeHeaderRow* headerRow) {
  std::vector<QString> newNames = ReadNames(headerRow);
  if (newNames == names) return;
  // A count that stays keeps the sections, and with them a drag that is under way.
  const bool isReset = newNames.size() != names.size();
  if (isReset) beginResetModel();
  names = std::move(newNames);
  if (isReset) {
    endResetModel();
  } else {
    emit headerDataChanged(Qt::Horizontal, 0, static_cast<int>(names.size()) - 1);
  }
}

int HeaderModel::rowCount(const QModelIndex&) const {
  return 0;
}

int HeaderModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(names.size());
}

QVariant HeaderModel::data(const QModelIndex&, int) const {
  return {};
}

QVariant HeaderModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool isColumn = orientation == Qt::Horizontal && section >= 0 && section < columnCount();
  if (!isColumn || role != Qt::DisplayRole) return {};
  return names[static_cast<std::size_t>(section)];
}

}  // namespace standalone
