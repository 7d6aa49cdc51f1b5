#pragma once

#include <span>

#include "data/ColumnIdentifiers.h"
#include "data/TrackItemRowData.h"
#include "host/qelcore/UTF8StringStream.h"
#include "host/qelmediatypes/TickTime.h"

namespace Vantrel {

/// Appends a line for each row, with the fields of the columns in their display order. Long lists are
/// written by two threads. The rows stay as they are meanwhile, and so does what they reach.
/// `zeroPoint` is that of the exported sequence. Throws: as CellTextSource::Maker, on the calling
/// thread.
void AppendRows(qelcore::oUTF8StringStream& stream, std::span<const ColumnID> columns,
                std::span<const TrackItemRowData> rows, qelmediatypes::TickTime zeroPoint);

}  // namespace Vantrel
