#pragma once

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <QString>
#include <array>
#include <cstddef>
#include <vector>

#include "module/SearchTexts.h"

namespace benchmarks {

/// A plain table of the toolkit's that holds the texts that a search looks at, ready as its own
/// strings.
class QtTable final : public QAbstractTableModel {
 public:
  using Texts = std::array<QString, SearchTexts::kTextsOfARow>;

  explicit QtTable(const SearchTexts& searched);

  const Texts& GetTexts(int row) const { return rows[static_cast<std::size_t>(row)]; }
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  void Reset();

 private:
  std::vector<Texts> rows;
};

/// Lets pass the rows of which a text contains another, in either case of letters. As filters of the
/// toolkit do, it knows nothing of the table but what a model tells.
class QtFilter : public QSortFilterProxyModel {
 public:
  QtFilter(QtTable& table, const QString& wanted);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

  QtTable& table;
  QString wanted;
};

/// The same for a table whose strings it may look at without asking.
class QtDirectFilter final : public QtFilter {
 public:
  using QtFilter::QtFilter;

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
};

}  // namespace benchmarks
