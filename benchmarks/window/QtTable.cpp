#include "window/QtTable.h"

#include <algorithm>
#include <string_view>

namespace benchmarks {

QtTable::QtTable(const SearchTexts& searched) : rows(searched.CountRows()) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    std::transform(searched.GetTexts(i), searched.GetTexts(i) + SearchTexts::kTextsOfARow,
                   rows[i].begin(), [](std::string_view text) {
                     return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
                   });
  }
}

int QtTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int QtTable::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(SearchTexts::kTextsOfARow);
}

QVariant QtTable::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole) return {};
  return GetTexts(index.row())[static_cast<std::size_t>(index.column())];
}

void QtTable::Reset() {
  beginResetModel();
  endResetModel();
}

QtFilter::QtFilter(QtTable& table, const QString& wanted) : table(table), wanted(wanted) {
  setSourceModel(&table);
}

bool QtFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
  for (int column = 0; column < table.columnCount(); ++column) {
    const QString text = sourceModel()->index(row, column, parent).data().toString();
    if (text.contains(wanted, Qt::CaseInsensitive)) return true;
  }
  return false;
}

bool QtDirectFilter::filterAcceptsRow(int row, const QModelIndex&) const {
  return std::ranges::any_of(table.GetTexts(row), [this](const QString& text) {
    return text.contains(wanted, Qt::CaseInsensitive);
  });
}

}  // namespace benchmarks
