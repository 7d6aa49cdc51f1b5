#include "host/qelmediatypes/FrameRate.h"

namespace qelmediatypes {

namespace {

// The product of a 64-bit denominator and the ticks of a second has up to 102 bits.
__extension__ using Wide = unsigned __int128;

}  // namespace

FrameRate FrameRate::FromRational(std::int64_t numerator, std::int64_t denominator) noexcept {
  if (numerator <= 0 || denominator <= 0) return {};
  const Wide frames = static_cast<Wide>(numerator);
  const Wide ticks = static_cast<Wide>(denominator) * TickTime::kTicksPerSecond;
  const Wide duration = (2 * ticks + frames) / (2 * frames);
  if (duration > static_cast<Wide>(TickTime::Highest().GetTicks())) return {};
  return FrameRate(TickTime(static_cast<std::int64_t>(duration)));
}

std::int64_t FrameRate::GetNominalRate() const noexcept {
  if (!IsKnown()) return 0;
  const std::int64_t ticks = frameDuration.GetTicks();
  return (TickTime::kTicksPerSecond + ticks / 2) / ticks;
}

}  // namespace qelmediatypes
