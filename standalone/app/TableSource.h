#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/ZSL/Color.h"

namespace standalone {

/// A column of a table of texts.
struct TableColumn {
  std::string title;
  /// Numbers that are counted or compared stand at the right.
  bool isRightAligned = false;
  /// Whether its cells are colours; where there are any, they need no title.
  bool isSwatch = false;
  bool isNarrowedLast = false;
};

/// What a cell shows.
struct TableCell {
  /// UTF-8, of any content; valid until the next cell is read.
  std::string_view text;
  /// Whether the text asks for attention (drawn in red).
  bool isAlert = false;
  /// Set: the cell shows this colour, and no text.
  std::optional<ZSL::Color> swatch;
};

/// Where a table of texts comes from: cell by cell, as often as it is asked, so that nothing has to
/// keep them.
class TableSource {
 public:
  virtual ~TableSource() = default;
  TableSource(const TableSource&) = delete;
  TableSource& operator=(const TableSource&) = delete;

  virtual const std::vector<TableColumn>& GetColumns() const = 0;
  virtual std::size_t CountRows() const = 0;
  virtual TableCell ReadCell(std::size_t row, std::size_t column) = 0;

 protected:
  TableSource() = default;
};

}  // namespace standalone
