#pragma once

#include <cstddef>
#include <cstdint>

#include "generator/MediaLibrary.h"
#include "generator/PlannedItems.h"
#include "generator/TimelineShape.h"
#include "generator/TrackStyles.h"

namespace generator {

struct TrackWalkContext {
  const MediaLibrary& library;
  const TimelineShape& shape;
  const TimeBase& pictureBase;
  const TrackStyle& style;
  const PlannedTrack& track;
  /// Among the tracks of its kind.
  std::size_t place = 0;
  /// The number of its clips.
  std::size_t share = 0;
  /// How many shots the picture and the sound that belong together are made of, about.
  std::size_t shotCount = 1;
  /// The length of the timeline, in frames.
  std::int64_t span = 0;
};

/// Makes the items of a track from the first to the last, which is a clip.
void WalkTrack(const TrackWalkContext& context, ItemSink& sink);

}  // namespace generator
