#pragma once

#include <compare>
#include <cstdint>
#include <limits>

namespace qelmediatypes {

/// A time or a duration: a signed 64-bit count of ticks, 254016000000 to the second (so that 100 hours
/// are 91445760000000000). That rate is divisible by every picture rate in use and by 44100, 48000,
/// 88200, 96000 and 192000 samples a second; it is not by pulled sample rates such as 47952.
///
/// Sums saturate at the limits of 64 bits and never wrap. All operations are [any-thread], no-throw.
class TickTime {
 public:
  static constexpr std::int64_t kTicksPerSecond = 254016000000;

  constexpr TickTime() noexcept = default;
  explicit constexpr TickTime(std::int64_t ticks) noexcept : ticks(ticks) {}

  constexpr std::int64_t GetTicks() const noexcept { return ticks; }

  /// Whole frames of `frameDuration` in this time, cut toward zero: 5.9 frames are 5, -5.9 are -5.
  /// A frame duration below 1 tick gives 0.
  constexpr std::int64_t ToFrame64(TickTime frameDuration) const noexcept {
    return frameDuration.ticks < 1 ? 0 : ticks / frameDuration.ticks;
  }

  friend constexpr TickTime operator+(TickTime left, TickTime right) noexcept {
    std::int64_t sum = 0;
    if (!__builtin_add_overflow(left.ticks, right.ticks, &sum)) return TickTime(sum);
    return right.ticks < 0 ? Lowest() : Highest();
  }
  friend constexpr TickTime operator-(TickTime left, TickTime right) noexcept {
    std::int64_t difference = 0;
    if (!__builtin_sub_overflow(left.ticks, right.ticks, &difference)) return TickTime(difference);
    return right.ticks < 0 ? Highest() : Lowest();
  }
  friend constexpr auto operator<=>(const TickTime&, const TickTime&) noexcept = default;

  static constexpr TickTime Highest() noexcept {
    return TickTime(std::numeric_limits<std::int64_t>::max());
  }
  static constexpr TickTime Lowest() noexcept {
    return TickTime(std::numeric_limits<std::int64_t>::min());
  }

 private:
  std::int64_t ticks = 0;
};

/// The frame duration that means "not known".
inline constexpr TickTime kUnknownFrameDuration = TickTime::Highest();

/// 100 hours: where the open filler at the end of every track ends.
inline constexpr TickTime kOneHundredHours{91445760000000000};

}  // namespace qelmediatypes
