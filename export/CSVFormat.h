#pragma once

#include <cstddef>
#include <cstdint>

#include "data/ColumnIdentifiers.h"
#include "data/TrackItemRowData.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"
#include "host/qelui/Geometry.h"

/// The comma-separated text of the exported index: UTF-8 without byte-order mark, fields separated by
/// commas, every line ended by one line feed. All is [any-thread] and pure text; no locale touches it.
namespace Vantrel {

/// A field as it is written. A text with a comma, a double quote or a line feed stands between double
/// quotes with its own double quotes doubled; any other text, empty ones, blanks and carriage returns
/// included, is returned as it is, sharing its buffer.
qelcore::UTF8String QuoteCSVField(const qelcore::UTF8String& text);

/// A colour as red * 65536 + green * 256 + blue. Alpha has no part in it.
std::uint32_t ColorFieldValue(const qelui::ColorRGBA& color);

/// That value in upper-case hexadecimal without leading zeros: pure blue is FF, black is 0.
qelcore::UTF8String ColorFieldText(std::uint32_t value);
qelcore::UTF8String ColorFieldText(const qelui::ColorRGBA& color);

/// What a row's field says before quoting: the cell text, and for "Label Color" the colour.
/// `zeroPoint` is that of the exported sequence.
qelcore::UTF8String RowFieldText(const TrackItemRowData& row, ColumnID column,
                                 qelmediatypes::TickTime zeroPoint);

/// The name of a column that has none: "Column 2" for display index 1. The hidden first column of the
/// table counts.
qelcore::UTF8String NumberedColumnName(std::size_t displayIndex);

/// True for columns that are written. The table's own hierarchy column (identifier 0 or 1) is left
/// out, without a separator.
constexpr bool IsExportedColumn(ColumnID column) noexcept {
  return column > 1;
}

/// Whether a comma follows a field: unless it stands in the last display position. The position counts,
/// not the fields written: when the last column is left out, the line ends with a comma.
constexpr bool HasCommaAfter(std::size_t displayIndex, std::size_t columnCount) noexcept {
  return displayIndex + 1 < columnCount;
}

/// `size` as the byte count of one block. Call it before the file is created, so that a text that is
/// too long leaves the old file as it was.
/// Throws: qel_exception of kind kLimit above 4294967295 bytes, the highest count of a block.
std::uint32_t RequireBlockSize(std::size_t size);

}  // namespace Vantrel
