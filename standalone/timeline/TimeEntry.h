#pragma once

#include <optional>
#include <string_view>

#include "host/qelmediatypes/TickTime.h"
#include "host/qelmediatypes/TimeDisplay.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// How the times of a sequence are written and counted.
struct TimeNotation {
  qelmediatypes::TimeDisplay display;
  /// Of a picture frame, or of an audio sample where the display counts samples.
  qelmediatypes::TickTime frameDuration = qelmediatypes::kUnknownFrameDuration;
  /// The time that the first frame carries.
  qelmediatypes::TickTime zeroPoint;
};

/// The time of a sequence (without its zero point) that a person typed, or none when it makes no sense.
///
/// Fields are separated by ":", ";", "." or ","; the last one counts frames (samples, thousandths), and
/// those that are left out on the left are 0: "10:00" is ten seconds. Digits alone are fields of two
/// digits from the right, as on a keypad: "1000" is ten seconds too (thousandths take three digits;
/// frames, feet and samples are one number). Feet and frames are written "12+05". A number may be
/// larger than its field holds. A timecode that drop-frame counting leaves out means the frame after
/// it. With "+" or "-" in front, the time is counted from `current`. [any-thread]
STANDALONE_API std::optional<qelmediatypes::TickTime> ReadTimeEntry(std::string_view text,
                                                                    const TimeNotation& notation,
                                                                    qelmediatypes::TickTime current);

}  // namespace standalone
