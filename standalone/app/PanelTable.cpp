#include "standalone/app/PanelTable.h"

#include <string>

#include "host/UIF/QELConversionUtilities.h"
#include "standalone/app/PanelCall.h"
#include "standalone/app/PanelColumns.h"

namespace standalone {

namespace {

using qelui::controls::UI_MultiColumnTree;
using qelui::controls::UI_MultiColumnTreeHeaderRow;

/// What the panel warns in.
constexpr qelui::ColorRGBA kRed{1, 0, 0, 1};
constexpr float kRowHeight = 20;

bool IsNarrowedLast(std::uint32_t id) {
  return id == kIndexColumn || id == kTrackColumn || id == kStartTimeColumn || id == kEndTimeColumn ||
         id == kDurationColumn;
}

TableColumn DescribeColumn(const UI_MultiColumnTreeHeaderRow& header, std::uint32_t id) {
  TableColumn column;
  column.title = std::string(header.GetColumnNameUTF8(id).View());
  column.isRightAligned = id == kIndexColumn || id == kUsageCountColumn;
  column.isSwatch = id == kLabelColorColumn;
  column.isNarrowedLast = IsNarrowedLast(id);
  return column;
}

}  // namespace

PanelTable::PanelTable(const UI_MultiColumnTree& tree) : tree(tree) {
  const auto headerRow = tree.GetHeaderRow();
  const UI_MultiColumnTreeHeaderRow& header = qelcore::Required(headerRow);
  for (std::size_t i = 0; i < header.GetCountOfColumns(); ++i) {
    const std::uint32_t id = header.GetColumnAt(i);
    if (id == UI_MultiColumnTreeHeaderRow::kHierarchyColumnID) continue;
    columns.push_back(DescribeColumn(header, id));
    places.push_back({i, header.GetColumnWidth(id)});
  }
}

TableCell PanelTable::ReadCell(std::size_t row, std::size_t column) {
  drawbot.Clear();
  const Place& place = places[column];
  CallPanel([&] {
    tree.DrawCellOfRow(drawbot, FindRow(row), place.displayIndex, {0, 0, place.pixels, kRowHeight});
  });
  TableCell cell;
  if (drawbot.GetFill()) {
    cell.swatch = UIF::QELConversionUtilities::QELColorRGBAtoZSLColor(*drawbot.GetFill());
  }
  cell.text = drawbot.GetText();
  cell.isAlert = !cell.text.empty() && drawbot.GetTextColor() == kRed;
  return cell;
}

PanelTable::Row* PanelTable::FindRow(std::size_t position) {
  if (found == nullptr || position != foundPosition) {
    found = tree.GetRow(position);
    foundPosition = position;
  }
  return found;
}

}  // namespace standalone
