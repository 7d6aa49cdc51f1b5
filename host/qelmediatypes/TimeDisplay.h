#pragma once

#include <cstdint>

namespace qelmediatypes {

/// How a time is written.
struct TimeDisplay {
  enum class Count : std::uint32_t {
    kNonDropFrame = 0,  ///< Timecode that numbers every frame; ":" before the frames.
    kDropFrame = 1,     ///< Timecode that skips frame numbers to keep pace with the clock; ";".
  };

  Count count = Count::kNonDropFrame;

  friend constexpr bool operator==(const TimeDisplay&, const TimeDisplay&) noexcept = default;
};

}  // namespace qelmediatypes
