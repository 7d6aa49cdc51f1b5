#pragma once

#include <functional>
#include <optional>

#include "standalone/import/OtioClip.h"
#include "standalone/import/OtioImport.h"
#include "standalone/import/OtioTime.h"
#include "standalone/import/OtioTracks.h"
#include "standalone/model/SequenceDraft.h"

namespace standalone {

/// A sequence that an item of a track plays, once it is built.
struct OtioNestedSequence {
  std::size_t index = 0;
  std::string name;
  /// Of its whole content.
  TimeSum length;
  qelmediatypes::FrameRate videoRate;
  qelmediatypes::FrameRate audioRate;
};

/// Builds the sequence of a nested item.
using OtioNesting = std::function<OtioNestedSequence(JsonValue item)>;

/// The part of a track that its own range and its stack's range leave visible.
struct OtioWindow {
  /// What to add to a position in the track's content.
  TimeSum shift;
  qelmediatypes::TickTime lowest;
  qelmediatypes::TickTime highest;
};

struct OtioTrackContext {
  const OtioSequenceRates& rates;
  OtioImport& import;
  const OtioNesting& nest;
  std::string_view sequenceName;
};

/// Stands the items of a track one after the other, from exact sums, each position rounded once. Gaps
/// at the end are left out, since every track of the host ends in an open filler; the track is cut just
/// below 100 hours. Returns the length of the content as if nothing were cut.
TimeSum LayOutTrack(const OtioTrackSource& source, const OtioWindow& window,
                    const OtioTrackContext& context, TrackDraft& track);

/// The length of a track's content as far as the items tell it themselves; empty when a nested item
/// without a range would have to be built first.
std::optional<TimeSum> MeasureTrack(const OtioTrackSource& source);

}  // namespace standalone
