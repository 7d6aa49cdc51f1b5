#include <memory>
#include <string_view>

#include "data/CellText.h"
#include "data/ColumnIdentifiers.h"
#include "host/BE/Utilities.h"
#include "host/qelui/Theme.h"
#include "table/SequenceIndexTree.h"

namespace Vantrel {

namespace {

constexpr qelui::ColorRGBA kShortGapColor{1, 0, 0, 1};
constexpr std::uint32_t kPlainTextFont = 0;
constexpr std::u16string_view kDefaultEllipsis;
/// Where the middle of the line stands in a cell's height.
constexpr float kMiddle = 0.5F;

bool IsFlagged(const TrackItemRowData& row, ColumnID column) {
  return (column == kColumnStartTime && row.startFlagged) ||
         (column == kColumnEndTime && row.endFlagged);
}

qelui::ColorRGBA GetTextColor(const TrackItemRowData& row, ColumnID column) {
  if (IsFlagged(row, column)) return kShortGapColor;
  return qelui::skins::utilities::GetDefaultTextColor(*qelui::ui::GetDefaultThemeProvider());
}

}  // namespace

void SequenceIndexTree::SetUpDrawing() {
  SetDrawCellOfRowCallback(std::make_shared<const DrawCellFunction>(
      [this](qelui::Drawbot& drawbot, Row* row, std::size_t displayIndex, const qelui::Rect& cell) {
        DrawCell(drawbot, row, displayIndex, cell);
      }));
}

void SequenceIndexTree::DrawCell(qelui::Drawbot& drawbot, Row* row, std::size_t displayIndex,
                                 const qelui::Rect& cell) const {
  const auto headerRow = GetHeaderRow();
  const ColumnID column = qelcore::Required(headerRow).GetColumnAt(displayIndex);
  const std::size_t position = GetRowIndex(row);
  // Rows are drawn between two lists only while the table is being filled.
  if (position >= currentFilteredList.size()) return;
  const TrackItemRowData& data = currentFilteredList[position];
  if (column == kColumnLabelColor) {
    drawbot.FillRect(cell, data.labelColor);
    return;
  }
  const auto zeroPoint = BE::SequenceUtils::GetZeroPoint(data.sequence);
  DrawCellString(drawbot, cell, CellText(data, column, zeroPoint), GetTextColor(data, column),
                 cell.height * kMiddle, GetCellTextLeftInset(), qelui::ui::GetFontName(kPlainTextFont),
                 kDefaultEllipsis, kAlignLeft, kCutAtEnd);
}

}  // namespace Vantrel
