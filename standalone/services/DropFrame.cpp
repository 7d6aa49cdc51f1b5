#include "standalone/services/DropFrame.h"

#include "host/qelmediatypes/FrameRate.h"

namespace standalone {
namespace {

constexpr std::uint64_t kSecondsPerMinute = 60;
constexpr std::uint64_t kCycleMinutes = 10;

}  // namespace

std::uint64_t CountDroppedNumbers(qelmediatypes::TickTime frameDuration, std::uint64_t nominalRate) {
  constexpr std::uint64_t kLowestRate = 30;
  constexpr std::uint64_t kDroppedAtLowestRate = 2;
  if (nominalRate != 30 && nominalRate != 60 && nominalRate != 120) return 0;
  const auto pulled =
      qelmediatypes::FrameRate::FromRational(static_cast<std::int64_t>(nominalRate) * 1000, 1001);
  if (frameDuration != pulled.GetFrameDuration()) return 0;
  return nominalRate / kLowestRate * kDroppedAtLowestRate;
}

std::uint64_t ToDropFrameNumber(std::uint64_t frame, std::uint64_t nominalRate, std::uint64_t dropped) {
  const std::uint64_t fullMinute = nominalRate * kSecondsPerMinute;
  const std::uint64_t shortMinute = fullMinute - dropped;
  const std::uint64_t cycle = fullMinute + (kCycleMinutes - 1) * shortMinute;
  const std::uint64_t inCycle = frame % cycle;
  std::uint64_t shortMinutes = frame / cycle * (kCycleMinutes - 1);
  if (inCycle >= fullMinute) shortMinutes += (inCycle - fullMinute) / shortMinute + 1;
  return frame + dropped * shortMinutes;
}

std::uint64_t FromDropFrameNumber(std::uint64_t number, std::uint64_t nominalRate,
                                  std::uint64_t dropped) {
  const std::uint64_t fullMinute = nominalRate * kSecondsPerMinute;
  const std::uint64_t minutes = number / fullMinute;
  const std::uint64_t inMinute = number % fullMinute;
  const bool isLeftOut = minutes % kCycleMinutes != 0 && inMinute < dropped;
  const std::uint64_t carried = isLeftOut ? number + dropped - inMinute : number;
  return carried - dropped * (minutes - minutes / kCycleMinutes);
}

}  // namespace standalone
