#pragma once

#include <cstdint>
#include <vector>

#include "data/ColumnIdentifiers.h"
#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// A column, and how it is laid out: as the catalogue has it, and now.
struct ColumnLayoutEntry {
  ColumnID id = 0;
  /// The header text.
  qelcore::UTF8String name;

  /// Width in pixels; position from 1, the leftmost.
  std::uint64_t defaultWidth = 0;
  bool defaultShown = true;
  std::int32_t defaultPosition = -1;

  std::uint64_t width = 0;
  bool shown = true;
  std::int32_t position = -1;
};

using ColumnLayoutList = std::vector<ColumnLayoutEntry>;

/// All columns in their default layout, sorted by header text byte by byte. Header texts are localised
/// once, on first use. [any-thread]
ColumnLayoutList GetColumnCatalogue();

/// The header text of a column; empty for an identifier that is none. [any-thread]
qelcore::UTF8String GetColumnName(ColumnID id);

/// Sorts by header text byte by byte; a text stands before the longer ones that begin with it.
void SortByName(ColumnLayoutList& columns);

}  // namespace Vantrel
