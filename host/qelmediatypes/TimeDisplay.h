#pragma once

#include <cstdint>

namespace qelmediatypes {

/// How a time is written.
struct TimeDisplay {
  enum class Count : std::uint32_t {
    kNonDropFrame = 0,       ///< Timecode that numbers every frame; ":" before the frames.
    kDropFrame = 1,          ///< Timecode that skips frame numbers to keep pace with the clock; ";".
    kFeetAndFrames16mm = 2,  ///< Film of 40 frames to the foot: "12+05".
    kFeetAndFrames35mm = 3,  ///< Film of 16 frames to the foot: "12+05".
    kFrames = 4,             ///< The number of whole frames.
    kAudioSamples = 5,       ///< Hours, minutes, seconds, samples: "00:00:01:24000".
    kMilliseconds = 6,       ///< Hours, minutes, seconds, thousandths: "00:00:01.500".
  };

  Count count = Count::kNonDropFrame;

  friend constexpr bool operator==(const TimeDisplay&, const TimeDisplay&) noexcept = default;
};

}  // namespace qelmediatypes
