#include "table/ColumnLayout.h"

#include <algorithm>
#include <utility>

namespace Vantrel {

namespace {

using HeaderRow = qelui::controls::UI_MultiColumnTreeHeaderRow;

constexpr std::int32_t kNoSuchColumn = -1;

// The tree's own first column takes no room, so that every column the user sees is one of ours.
void HideHierarchyColumn(HeaderRow& headerRow) {
  const ColumnID hierarchy = headerRow.GetColumnAt(0);
  headerRow.SetColumnName(hierarchy, {});
  headerRow.SetColumnWidth(hierarchy, 0.0F);
}

void RemoveCatalogueColumns(HeaderRow& headerRow, const ColumnLayoutList& catalogue) {
  for (const ColumnLayoutEntry& column : catalogue) {
    if (headerRow.GetIndexOfColumn(column.id) != kNoSuchColumn) headerRow.RemoveColumn(column.id);
  }
}

void AppendShownColumns(HeaderRow& headerRow, const ColumnLayoutList& layout) {
  for (const ColumnLayoutEntry& column : layout) {
    if (!column.shown) continue;
    headerRow.AppendColumn(column.name, column.id);
    headerRow.SetColumnWidth(column.id, static_cast<float>(column.width));
  }
}

}  // namespace

ColumnLayoutList& GetColumnLayoutStore() {
  static ColumnLayoutList store;
  return store;
}

// By value: the row is held until its columns are laid out, whatever the calls into the host release.
void ApplyColumnLayout(
    qelcore::Ref<HeaderRow> headerRow) {  // NOLINT(performance-unnecessary-value-param)
  HeaderRow& columns = qelcore::Required(headerRow);
  HideHierarchyColumn(columns);
  const ColumnLayoutList catalogue = GetColumnCatalogue();
  ColumnLayoutList layout = GetColumnLayoutStore();
  if (layout.empty()) layout = catalogue;
  std::ranges::sort(layout, std::ranges::less(), &ColumnLayoutEntry::position);
  RemoveCatalogueColumns(columns, catalogue);
  AppendShownColumns(columns, layout);
  GetColumnLayoutStore() = std::move(layout);
}

}  // namespace Vantrel
