#pragma once

#include <vector>

#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/timeline/TimeEntry.h"
#include "standalone/timeline/TimeScale.h"

namespace standalone {

/// A mark of the ruler above a timeline.
struct RulerMark {
  /// A time of the sequence, without its zero point.
  qelmediatypes::TickTime time;
  /// Whether the time is written beside it; the others divide the stretch between two of these.
  bool hasLabel = false;

  friend bool operator==(const RulerMark&, const RulerMark&) = default;
};

/// The marks in view, in time order: at whole frames whose number in the sequence's own counting,
/// drop-frame counting included, is round (frames, samples, seconds, minutes, hours), labels at least
/// `labelWidth` pixels apart. As many as fit the view, whatever the scale. [any-thread]
STANDALONE_API std::vector<RulerMark> FindRulerMarks(const TimeScale& scale,
                                                     const TimeNotation& notation, double labelWidth);

}  // namespace standalone
