#include "window/CellTexts.h"

#include "standalone/toolkit/RecordingDrawbot.h"
#include "standalone/window/Colors.h"
#include "standalone/window/Utf8.h"

namespace benchmarks {

CellTexts::CellTexts(ShownTable& table)
    : rows(static_cast<int>(table.CountRows())),
      columns(static_cast<int>(table.GetWidget().GetColumns().GetShown().size())) {
  auto& tree = table.GetTree();
  const qelui::Rect cell{0, 0, 1000, ShownTable::kRowHeight};
  for (std::size_t position = 0; position < kShownRows; ++position) {
    for (const auto& column : table.GetWidget().GetColumns().GetShown()) {
      standalone::RecordingDrawbot drawn;
      tree.DrawCellOfRow(drawn, tree.GetRow(position), column.displayIndex, cell);
      const auto& lines = drawn.GetTextLines();
      const auto& fills = drawn.GetFills();
      texts.append(lines.empty() ? QVariant() : standalone::ToQString(lines.front().text.View()));
      backgrounds.append(fills.empty() ? QVariant() : standalone::ToQColor(fills.front().color));
    }
  }
}

int CellTexts::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows;
}

int CellTexts::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns;
}

QVariant CellTexts::data(const QModelIndex& index, int role) const {
  const qsizetype place = static_cast<qsizetype>(index.row() % kShownRows) * columns + index.column();
  if (role == Qt::DisplayRole) return texts[place];
  if (role == Qt::BackgroundRole) return backgrounds[place];
  return {};
}

}  // namespace benchmarks
