#pragma once

#include "data/TrackItemRowData.h"
#include "host/BE/MediaTypes.h"

namespace Vantrel {

/// True for a picture row, clip or gap. Wherever there are but two kinds, every other row counts as
/// sound. [any-thread]
inline bool IsVideoRow(const TrackItemRowData& row) noexcept {
  return row.mediaType == BE::kMediaType_Video;
}

/// True for a row of the sound media type itself. [any-thread]
inline bool IsAudioRow(const TrackItemRowData& row) noexcept {
  return row.mediaType == BE::kMediaType_Audio;
}

}  // namespace Vantrel
