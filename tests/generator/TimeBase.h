#pragma once

#include <cstdint>
#include <string_view>

#include "host/qelmediatypes/FrameRate.h"
#include "host/qelmediatypes/TickTime.h"

namespace generator {

/// What times are counted in: frames or samples a second, the length of one being whole ticks.
struct TimeBase {
  std::int64_t numerator = 25;
  std::int64_t denominator = 1;
  /// As editing programs write the rate, and as our own metadata names it.
  std::string_view text = "25.0";
  std::string_view name = "25";

  qelmediatypes::FrameRate ToFrameRate() const {
    return qelmediatypes::FrameRate::FromRational(numerator, denominator);
  }
  qelmediatypes::TickTime ToTicks(std::int64_t count) const {
    return qelmediatypes::TickTime(count * ToFrameRate().GetFrameDuration().GetTicks());
  }
  /// Rounded up for 29.97.
  std::int64_t GetNominalRate() const { return (numerator + denominator - 1) / denominator; }
};

inline constexpr TimeBase kSamples{48000, 1, "48000.0", "48000"};

}  // namespace generator
