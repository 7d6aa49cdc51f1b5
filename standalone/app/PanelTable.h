#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/qelui/MultiColumnTree.h"
#include "standalone/app/CellDrawbot.h"
#include "standalone/app/TableSource.h"

namespace standalone {

/// The panel's table as it shows itself: the columns of its header row, and each cell as its own code
/// draws it. [main-thread]
class PanelTable final : public TableSource {
 public:
  /// `tree` is not owned; its columns and rows must stay as they are.
  explicit PanelTable(const qelui::controls::UI_MultiColumnTree& tree);

  const std::vector<TableColumn>& GetColumns() const override { return columns; }
  std::size_t CountRows() const override { return tree.CountRows(); }
  /// Throws: qel_exception or std::runtime_error when the panel fails to draw the cell.
  TableCell ReadCell(std::size_t row, std::size_t column) override;

 private:
  /// Where a column stands in the header row.
  struct Place {
    std::size_t displayIndex = 0;
    float pixels = 0;
  };

  using Row = qelui::controls::UI_MultiColumnTreeRow;

  /// The tree's row at a position. A table is read row by row.
  Row* FindRow(std::size_t position);

  const qelui::controls::UI_MultiColumnTree& tree;
  /// The row looked at last, and where it stands; null before the first look.
  Row* found = nullptr;
  std::size_t foundPosition = 0;
  std::vector<TableColumn> columns;
  std::vector<Place> places;
  /// Keeps the text of the cell read last.
  CellDrawbot drawbot;
};

}  // namespace standalone
