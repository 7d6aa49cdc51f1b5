#pragma once

#include <cstdint>

#include "data/TrackItemRowData.h"

namespace Vantrel {

/// Marks the times on both sides of each short gap: for every two neighbouring picture rows that leave
/// at least one tick and at most `threshold` whole frames between them, the end of the first and the
/// start of the second. Neighbours are neighbours in the list, whatever their tracks; rows on disabled
/// or muted tracks are left out first. Frames are those of the first row's sequence. A negative
/// threshold marks nothing. [any-thread]
/// @param rows a whole list in its final order, numbered: each `index` is the row's position.
/// Throws: null_pointer_exception for a picture row without track item or track, or without sequence
/// where a gap follows it; rows may be marked by then.
void MarkShortGaps(TrackItemDataList& rows, std::int32_t threshold);

}  // namespace Vantrel
