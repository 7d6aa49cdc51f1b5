#pragma once

#include "data/ColumnIdentifiers.h"
#include "data/TrackItemRowData.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"

namespace Vantrel {

/// The text of a cell, the same for drawing and for export. Empty for "Label Color", which shows a
/// colour and no text, and for identifiers that are no column. Stored texts share the row's buffer;
/// the others are worked out from the row's references. [any-thread]
/// Throws: null_pointer_exception when the row has no track item and the column asks it.
qelcore::UTF8String CellText(const TrackItemRowData& row, ColumnID column);

/// The same with the zero point of the row's sequence given, for whoever asks for many cells.
qelcore::UTF8String CellText(const TrackItemRowData& row, ColumnID column,
                             qelmediatypes::TickTime zeroPoint);

}  // namespace Vantrel
