#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/app/ColumnWidths.h"
#include "standalone/app/KeptCells.h"
#include "standalone/app/TableLine.h"
#include "standalone/app/TableSource.h"
#include "standalone/app/Terminal.h"

namespace standalone {

/// Takes lines, each with its line break.
using LineSink = std::function<void(std::string_view line)>;

/// Lays a table out as aligned lines of text: a header, then a line for each row. Cells are read to
/// measure them and kept until they are printed; those of a very long table's end are read once more
/// instead.
class TextTable {
 public:
  /// Measures all cells. `source` is not owned. `room` is the width of the screen in columns (none:
  /// nothing is cut); texts that don't fit end in "…".
  TextTable(TableSource& source, std::optional<std::size_t> room, ColorDepth colors);

  /// How many columns at the right found no room.
  std::size_t CountOmittedColumns() const;
  void Print(const LineSink& sink);

 private:
  bool IsColored() const { return colors != ColorDepth::kNone; }
  std::string_view GetTitle(const TableColumn& column) const;
  std::size_t MeasureTitle(const TableColumn& column);
  /// The width that each column would like, for which all cells are read.
  std::vector<WantedWidth> MeasureColumns();
  /// A cell from the source.
  ShowableCell ReadCell(std::size_t row, std::size_t column);
  /// A cell that was kept, else from the source.
  ShowableCell GetCell(std::size_t row, std::size_t column);

  std::string_view MakeHeaderLine();
  std::string_view MakeRowLine(std::size_t row);
  void AddCell(const ShowableCell& cell, std::size_t column);
  /// Adds a text, cut or filled to the width of its column.
  void AddText(const ShowableCell& cell, std::size_t column, TextStyle style);
  void AddCutText(std::string_view showable, std::size_t width, TextStyle style);
  void AddGapBefore(std::size_t column);

  TableSource& source;
  const ColorDepth colors;
  /// Room for one text at a time.
  std::string buffer;
  KeptCells kept;
  const std::vector<std::size_t> widths;
  TableLine line;
};

}  // namespace standalone
