#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/app/TableLine.h"
#include "standalone/app/TableSource.h"
#include "standalone/app/Terminal.h"

namespace standalone {

/// Takes lines, each with its line break.
using LineSink = std::function<void(std::string_view line)>;

/// Lays a table out as aligned lines of text: a header, then a line for each row. Rows are read once to
/// measure them and once to print them, and never kept.
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
  std::size_t MeasureTitle(const TableColumn& column);
  std::size_t MeasureCell(const TableCell& cell);
  std::string_view GetTitle(const TableColumn& column) const;
  std::string_view GetText(const TableCell& cell);

  std::string_view MakeHeaderLine();
  std::string_view MakeRowLine(std::size_t row);
  void AddCell(const TableCell& cell, std::size_t column);
  /// Adds a text, cut or filled to the width of its column.
  void AddText(std::string_view text, std::size_t column, TextStyle style);
  void AddCutText(std::string_view showable, std::size_t width, TextStyle style);
  void AddGapBefore(std::size_t column);

  TableSource& source;
  const ColorDepth colors;
  std::vector<std::size_t> widths;
  TableLine line;
  /// Room for one text at a time.
  std::string buffer;
};

}  // namespace standalone
