#pragma once

#include "data/TrackItemRowData.h"
#include "host/BE/MediaTypes.h"

namespace Vantrel {

/// True for a picture row, clip or gap. Every other row counts as sound. [any-thread]
inline bool IsVideoRow(const TrackItemRowData& row) noexcept {
  return row.mediaType == BE::kMediaType_Video;
}

}  // namespace Vantrel
