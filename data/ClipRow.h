#pragma once

#include "data/TrackItemRowData.h"

namespace Vantrel {

/// True when the row's track item is of the clip type. A row without track item is no clip.
/// [any-thread]
inline bool IsClipRow(const TrackItemRowData& row) {
  return row.trackItem && row.trackItem->GetType() == BE::kTrackItemType_Clip;
}

}  // namespace Vantrel
