#include "standalone/timeline/RulerMarks.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "host/qelmediatypes/FrameRate.h"
#include "standalone/services/DropFrame.h"

namespace standalone {
namespace {

using qelmediatypes::FrameRate;
using qelmediatypes::TickTime;

/// Marks between two labels, the label's own included.
constexpr std::int64_t kMarksPerLabel = 5;
/// Marks closer than this are left out, in pixels.
constexpr double kClosestMarks = 8;

/// Up to a second, where a second holds more of them. Beyond ten: where samples are counted.
constexpr std::int64_t kRoundFrames[] = {1, 2, 5, 10};
constexpr std::int64_t kRoundSamples[] = {1,   2,   5,    10,   20,   50,    100,
                                          200, 500, 1000, 2000, 5000, 10000, 20000};
constexpr std::int64_t kLowestSampleRate = 1000;
/// From one second to twenty hours.
constexpr std::int64_t kRoundSeconds[] = {1,   2,   5,    10,   15,   30,    60,    120,  300,
                                          600, 900, 1800, 3600, 7200, 18000, 36000, 72000};
constexpr std::int64_t kSecondsPerMinute = 60;

/// How a sequence numbers its frames, or samples.
class Counting {
 public:
  explicit Counting(const TimeNotation& notation)
      : duration(notation.frameDuration),
        perSecond(std::max<std::int64_t>(1, FrameRate(duration).GetNominalRate())) {
    if (notation.display.count != qelmediatypes::TimeDisplay::Count::kDropFrame) return;
    dropped = CountDroppedNumbers(duration, static_cast<std::uint64_t>(perSecond));
  }

  std::int64_t GetPerSecond() const noexcept { return perSecond; }
  /// The number that the frame at a time carries.
  std::int64_t ToNumber(TickTime time) const {
    return Convert(time.ToFrame64(duration), ToDropFrameNumber);
  }
  /// The frame that carries a number, or the one after it where the number is left out.
  std::int64_t ToFrame(std::int64_t number) const { return Convert(number, FromDropFrameNumber); }
  /// The fewest frames that lie between two numbers so far apart.
  std::int64_t CountFrames(std::int64_t numbers) const noexcept {
    const std::int64_t minutes = numbers / (perSecond * kSecondsPerMinute) + 1;
    return numbers - static_cast<std::int64_t>(dropped) * minutes;
  }

 private:
  using Function = std::uint64_t (*)(std::uint64_t, std::uint64_t, std::uint64_t);

  /// Negative times are counted as positive ones, with a sign.
  std::int64_t Convert(std::int64_t count, Function function) const {
    if (dropped == 0) return count;
    const auto rate = static_cast<std::uint64_t>(perSecond);
    const auto magnitude = static_cast<std::uint64_t>(std::abs(count));
    const auto converted = static_cast<std::int64_t>(function(magnitude, rate, dropped));
    return count < 0 ? -converted : converted;
  }

  TickTime duration;
  std::int64_t perSecond;
  std::uint64_t dropped = 0;
};

/// The smallest round number of frames that take at least so many.
std::int64_t ChooseStep(double least, const Counting& counting) {
  const std::int64_t perSecond = counting.GetPerSecond();
  const auto isEnough = [&](std::int64_t numbers) {
    return static_cast<double>(counting.CountFrames(numbers)) >= least;
  };
  const std::span<const std::int64_t> withinSecond =
      perSecond < kLowestSampleRate ? std::span<const std::int64_t>(kRoundFrames) : kRoundSamples;
  for (const std::int64_t numbers : withinSecond) {
    if (numbers < perSecond && isEnough(numbers)) return numbers;
  }
  for (const std::int64_t seconds : kRoundSeconds) {
    if (isEnough(seconds * perSecond)) return seconds * perSecond;
  }
  return static_cast<std::int64_t>(std::ceil(least));
}

/// Rounded down, for negative numbers too.
std::int64_t DivideDown(std::int64_t dividend, std::int64_t divisor) {
  const std::int64_t quotient = dividend / divisor;
  return quotient - (dividend % divisor < 0 ? 1 : 0);
}

}  // namespace

std::vector<RulerMark> FindRulerMarks(const TimeScale& scale, const TimeNotation& notation,
                                      double labelWidth) {
  std::vector<RulerMark> marks;
  if (!FrameRate(notation.frameDuration).IsKnown()) return marks;
  const Counting counting(notation);
  const std::int64_t duration = notation.frameDuration.GetTicks();
  const double framesPerPixel = scale.GetTicksPerPixel() / static_cast<double>(duration);
  const std::int64_t labelStep = ChooseStep(framesPerPixel * std::max(labelWidth, 1.0), counting);
  const bool isDivided =
      labelStep % kMarksPerLabel == 0 &&
      static_cast<double>(labelStep / kMarksPerLabel) / framesPerPixel >= kClosestMarks;
  const std::int64_t step = isDivided ? labelStep / kMarksPerLabel : labelStep;

  const std::int64_t zero = notation.zeroPoint.ToFrame64(notation.frameDuration);
  const auto toNumber = [&](TickTime time) { return counting.ToNumber(notation.zeroPoint + time); };
  const std::int64_t last = DivideDown(toNumber(scale.GetEnd()), step);
  for (std::int64_t i = DivideDown(toNumber(scale.GetStart()), step); i <= last; ++i) {
    const std::int64_t frame = counting.ToFrame(i * step);
    const TickTime time((frame - zero) * duration);
    // Several numbers that are left out lead to one frame.
    if (frame < zero || (!marks.empty() && marks.back().time == time)) continue;
    marks.push_back({time, i * step % labelStep == 0});
  }
  return marks;
}

}  // namespace standalone
