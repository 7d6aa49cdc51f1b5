#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "host/BE/Model.h"
#include "host/ZSL/Color.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/timeline/TimeEntry.h"

namespace standalone {

class SequenceContent;
class TrackItemNode;
class TrackNode;

/// A track as a timeline view shows it.
struct TimelineLane {
  /// "V1", or "V1 Dialogue" where the file names the track.
  qelcore::UTF8String name;
  bool isVideo = false;
  bool isDisabledOrMuted = false;
  bool isLocked = false;
};

/// A clip or a gap on a track, transitions apart, which belong to the clips that they join.
struct TimelineItem {
  qelmediatypes::TickTime start;
  qelmediatypes::TickTime end;
  /// A gap has a place and a track item, nothing else.
  bool isGap = false;
  bool isDisabled = false;
  bool isOffline = false;
  bool hasHeadTransition = false;
  bool hasTailTransition = false;
  ZSL::Color labelColor;
  qelcore::UTF8String name;
  qelcore::Ref<BE::ITrackItem> trackItem;
};

/// What is published of a sequence at one moment, for a view that draws it: tracks from the top, the
/// items of each found by time. Immutable; copies share it. [any-thread]
class STANDALONE_API TimelineContent {
 public:
  using TickTime = qelmediatypes::TickTime;

  /// Nothing.
  TimelineContent();
  /// Nothing of an empty sequence, or one that this host did not make. [main-thread], so that nothing
  /// else is published meanwhile.
  explicit TimelineContent(const qelcore::Ref<BE::ISequence>& sequence);
  TimelineContent(const TimelineContent&);
  TimelineContent& operator=(const TimelineContent&);
  ~TimelineContent();

  /// Video from the highest track down, then audio from the first.
  const std::vector<TimelineLane>& GetLanes() const noexcept { return lanes; }
  const TimeNotation& GetNotation() const noexcept { return notation; }
  /// The duration of a picture frame, also where times are counted in samples.
  TickTime GetFrameDuration() const noexcept { return frameDuration; }
  /// Where the last clip ends.
  TickTime GetEnd() const noexcept { return end; }

  /// Calls `visit` with the items of a lane of which something lies in [from, to), in time order, the
  /// open end of the track left out. `visit` answers from where on it wants to see more: items that end
  /// at or before that time are passed over without a look at each.
  template <typename Visit>
  void VisitItems(std::size_t lane, TickTime from, TickTime to, Visit&& visit) const {
    for (std::size_t i = FindFirstEndingAfter(lane, from, 0); i < CountItems(lane);) {
      const std::optional<TimelineItem> item = GetItem(lane, i);
      if (item && item->start >= to) return;
      i = item ? FindFirstEndingAfter(lane, visit(*item), i + 1) : i + 1;
    }
  }

  /// The item of a lane at a time; none at its open end, and where there is no such lane.
  std::optional<TimelineItem> FindItemAt(std::size_t lane, TickTime time) const;

  /// The nearest beginning or end of a clip on any track before, or after, a time.
  std::optional<TickTime> FindCutBefore(TickTime time) const;
  std::optional<TickTime> FindCutAfter(TickTime time) const;

 private:
  std::size_t CountItems(std::size_t lane) const;
  /// None for a transition and for the open end.
  std::optional<TimelineItem> GetItem(std::size_t lane, std::size_t index) const;
  std::size_t FindFirstEndingAfter(std::size_t lane, TickTime time, std::size_t begin) const;
  TrackItemNode& GetNode(std::size_t lane, std::size_t index) const;

  qelcore::Ref<SequenceContent> content;
  std::vector<const TrackNode*> tracks;
  std::vector<TimelineLane> lanes;
  TimeNotation notation;
  TickTime frameDuration;
  TickTime end;
};

}  // namespace standalone
