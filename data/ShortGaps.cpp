#include "data/ShortGaps.h"

#include "data/MediaTypes.h"
#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "host/qelmediatypes/TickTime.h"

namespace Vantrel {
namespace {

bool IsTrackDisabledOrMuted(const TrackItemRowData& row) {
  const auto track = qelcore::Required(row.trackItem).GetTrack();
  return qelcore::RequireInterface<BE::ITrack>(track)->IsDisabledOrMuted();
}

/// The picture frame duration of sequences. Asking for it takes a lock, and the rows of a list are of
/// one sequence, so the last answer is kept.
class FrameDurations {
 public:
  qelmediatypes::TickTime Get(const qelcore::Ref<BE::ISequence>& sequence) {
    if (asked == nullptr || asked != sequence.Get()) {
      duration = qelcore::Required(sequence).GetVideoFrameDuration();
      asked = sequence.Get();
    }
    return duration;
  }

 private:
  const BE::ISequence* asked = nullptr;
  qelmediatypes::TickTime duration;
};

bool IsShortGap(const TrackItemRowData& previous, const TrackItemRowData& current,
                std::int32_t threshold, FrameDurations& frameDurations) {
  if (previous.end >= current.start) return false;
  const auto frameDuration = frameDurations.Get(previous.sequence);
  return threshold >= (current.start - previous.end).ToFrame64(frameDuration);
}

}  // namespace

void MarkShortGaps(TrackItemDataList& rows, std::int32_t threshold) {
  // Comparing looks at times only, so flags already set do not matter and positions need no copies.
  const TrackItemRowData* previous = nullptr;
  FrameDurations frameDurations;
  for (const TrackItemRowData& current : rows) {
    if (!IsVideoRow(current) || IsTrackDisabledOrMuted(current)) continue;
    if (previous != nullptr && IsShortGap(*previous, current, threshold, frameDurations)) {
      rows[previous->index].endFlagged = true;
      rows[current.index].startFlagged = true;
    }
    previous = &current;
  }
}

}  // namespace Vantrel
