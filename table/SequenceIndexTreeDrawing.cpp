#include <cstdint>
#include <memory>
#include <string_view>

#include "data/CellText.h"
#include "data/ColumnIdentifiers.h"
#include "host/BE/Utilities.h"
#include "host/qelcore/CountedObject.h"
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

qelui::ColorRGBA GetPlainTextColor() {
  return qelui::skins::utilities::GetDefaultTextColor(*qelui::ui::GetDefaultThemeProvider());
}

}  // namespace

// Weakly: the host may hold the function longer than the table, and the table holds it itself.
void SequenceIndexTree::SetUpDrawing() {
  SetDrawCellOfRowCallback(std::make_shared<const DrawCellFunction>(
      [weakTree = qelcore::WeakRef<SequenceIndexTree>(this)](
          qelui::Drawbot& drawbot, Row* row, std::size_t displayIndex, const qelui::Rect& cell) {
        if (const auto tree = weakTree.Lock()) tree->DrawCell(drawbot, row, displayIndex, cell);
      }));
}

// The one way from a row to its data: while the table is being filled anew, its old rows may stand over
// a shorter list.
const TrackItemRowData* SequenceIndexTree::FindRowData(std::size_t position) const noexcept {
  return position < currentFilteredList.size() ? &currentFilteredList[position] : nullptr;
}

void SequenceIndexTree::DrawCell(qelui::Drawbot& drawbot, Row* row, std::size_t displayIndex,
                                 const qelui::Rect& cell) const {
  const ColumnID column = qelcore::Required(GetHeaderRow()).GetColumnAt(displayIndex);
  const TrackItemRowData* const found = FindRowData(GetRowIndex(row));
  if (found == nullptr) return;
  const TrackItemRowData& data = *found;
  const qelui::ColorRGBA plain = GetPlainTextColor();
  const auto zeroPoint = BE::SequenceUtils::GetZeroPoint(data.sequence);
  if (column == kColumnLabelColor) {
    drawbot.FillRect(cell, data.labelColor);
    return;
  }
  DrawCellString(drawbot, cell, CellText(data, column, zeroPoint),
                 IsFlagged(data, column) ? kShortGapColor : plain, cell.height * kMiddle,
                 GetCellTextLeftInset(), qelui::ui::GetFontName(kPlainTextFont), kDefaultEllipsis,
                 kAlignLeft, kCutAtEnd);
}

}  // namespace Vantrel
