#pragma once

#include "data/TrackItemRowData.h"

namespace Vantrel {

/// True when the row's track item is of the empty type. A row without track item is no gap.
/// [any-thread]
inline bool IsGapRow(const TrackItemRowData& row) {
  return row.trackItem && row.trackItem->GetType() == BE::kTrackItemType_Empty;
}

}  // namespace Vantrel
