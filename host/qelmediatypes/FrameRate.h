#pragma once

#include <cstdint>

#include "host/HostAPI.h"
#include "host/qelmediatypes/TickTime.h"

namespace qelmediatypes {

/// A picture or sample rate, held as the duration of one frame in ticks. [any-thread], no-throw.
class HOST_API FrameRate {
 public:
  /// A rate that is not known.
  constexpr FrameRate() noexcept = default;
  explicit constexpr FrameRate(TickTime frameDuration) noexcept : frameDuration(frameDuration) {}

  /// The rate of `numerator` frames in `denominator` seconds, its frame duration rounded to the
  /// nearest tick; unknown unless both are positive. 30000/1001 is exact.
  static FrameRate FromRational(std::int64_t numerator, std::int64_t denominator) noexcept;

  constexpr TickTime GetFrameDuration() const noexcept { return frameDuration; }

  /// False for the unknown duration and for durations below one tick.
  constexpr bool IsKnown() const noexcept {
    return frameDuration.GetTicks() > 0 && frameDuration != kUnknownFrameDuration;
  }

  /// Frames a second rounded to the nearest whole number (30 for 29.97); 0 when unknown.
  std::int64_t GetNominalRate() const noexcept;

  friend constexpr bool operator==(const FrameRate&, const FrameRate&) noexcept = default;

 private:
  TickTime frameDuration = kUnknownFrameDuration;
};

}  // namespace qelmediatypes
