#include "standalone/window/RowsText.h"

#include <QStringList>
#include <algorithm>
#include <vector>

#include "standalone/window/CellDescription.h"
#include "standalone/window/ColumnSpans.h"
#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

/// What separates cells and lines can't stand in one.
QString MakeCell(QString text) {
  for (const QChar separator : {QChar('\t'), QChar('\n'), QChar('\r')}) text.replace(separator, ' ');
  return text;
}

}  // namespace

QString CopyRows(const qelui::controls::UI_MultiColumnTree& tree) {
  const auto headerRow = tree.GetHeaderRow();
  const auto rows = tree.GetSelectedRows();
  if (!headerRow || rows.empty()) return {};
  ColumnSpans columns;
  columns.Read(*headerRow);
  QStringList lines;
  QStringList cells;
  for (const ColumnSpan& column : columns.GetShown()) {
    cells.append(MakeCell(ToQString(headerRow->GetColumnNameUTF8(column.id).View())));
  }
  lines.append(cells.join('\t'));
  for (std::size_t i = 0; i < std::min(rows.size(), kMostCopiedRows); ++i) {
    cells.clear();
    for (const ColumnSpan& column : columns.GetShown()) {
      cells.append(MakeCell(DescribeCell(tree, tree.GetRowIndex(rows[i]), column.displayIndex)));
    }
    lines.append(cells.join('\t'));
  }
  return lines.join('\n') + '\n';
}

}  // namespace standalone
