#include "data/ShortGaps.h"

#include "data/MediaTypes.h"
#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"

namespace Vantrel {
namespace {

bool IsTrackDisabledOrMuted(const TrackItemRowData& row) {
  const auto track = qelcore::Required(row.trackItem).GetTrack();
  return qelcore::RequireInterface<BE::ITrack>(track)->IsDisabledOrMuted();
}

bool IsShortGap(const TrackItemRowData& previous, const TrackItemRowData& current,
                std::int32_t threshold) {
  if (previous.end >= current.start) return false;
  const auto frameDuration = qelcore::Required(previous.sequence).GetVideoFrameDuration();
  return threshold >= (current.start - previous.end).ToFrame64(frameDuration);
}

}  // namespace

void MarkShortGaps(TrackItemDataList& rows, std::int32_t threshold) {
  // Comparing looks at times only, so flags already set do not matter and positions need no copies.
  const TrackItemRowData* previous = nullptr;
  for (const TrackItemRowData& current : rows) {
    if (!IsVideoRow(current) || IsTrackDisabledOrMuted(current)) continue;
    if (previous != nullptr && IsShortGap(*previous, current, threshold)) {
      rows[previous->index].endFlagged = true;
      rows[current.index].startFlagged = true;
    }
    previous = &current;
  }
}

}  // namespace Vantrel
