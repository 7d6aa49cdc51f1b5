#pragma once

#include <cstddef>
#include <vector>

#include "data/TrackItemRowData.h"
#include "host/qelmediatypes/TickTime.h"

namespace Vantrel {

/// Both take rows in the order of the table, which is by start. Times are of the sequence, without its
/// zero point. [any-thread]

/// How many rows, counted from the first, start at or before a time. Takes logarithmic time.
std::size_t CountRowsStartedBy(const TrackItemDataList& rows, qelmediatypes::TickTime time) noexcept;

/// The positions of the rows that a time lies in, ascending. A row begins at its start and ends before
/// its end, so that on a cut only the later of two clips counts. Looks at the rows started by then.
std::vector<std::size_t> FindRowsAtTime(const TrackItemDataList& rows, qelmediatypes::TickTime time);

}  // namespace Vantrel
