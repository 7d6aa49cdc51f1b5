#include "host/ZSL/Timecode.h"

#include <algorithm>
#include <cstdint>

#include "host/qelmediatypes/FrameRate.h"
#include "standalone/services/BackwardText.h"
#include "standalone/services/ClockText.h"
#include "standalone/services/DropFrame.h"

namespace ZSL {
namespace {

using qelmediatypes::FrameRate;
using qelmediatypes::TickTime;
using standalone::BackwardText;
using Count = qelmediatypes::TimeDisplay::Count;

constexpr std::uint64_t kMillisecondsPerSecond = 1000;
constexpr TickTime kMillisecond{TickTime::kTicksPerSecond / 1000};
constexpr std::uint64_t kFramesPerFoot16mm = 40;
/// Of pictures four perforations high.
constexpr std::uint64_t kFramesPerFoot35mm = 16;

/// Whole units of the display, cut toward zero.
std::int64_t CountUnits(TickTime time, TickTime frameDuration, Count count) {
  if (count == Count::kMilliseconds) return time.ToFrame64(kMillisecond);
  return FrameRate(frameDuration).IsKnown() ? time.ToFrame64(frameDuration) : 0;
}

/// Frames longer than two seconds, and unknown ones, round to none a second; they count one.
std::uint64_t GetUnitsPerSecond(TickTime frameDuration) {
  const auto rate = static_cast<std::uint64_t>(FrameRate(frameDuration).GetNominalRate());
  return std::max<std::uint64_t>(1, rate);
}

void PutFeetAndFrames(BackwardText& text, std::uint64_t frames, std::uint64_t framesPerFoot) {
  text.PutNumber(frames % framesPerFoot, 2);
  text.Put('+');
  text.PutNumber(frames / framesPerFoot, 1);
}

void PutDropFrameTimecode(BackwardText& text, std::uint64_t frame, TickTime frameDuration) {
  const std::uint64_t rate = GetUnitsPerSecond(frameDuration);
  const std::uint64_t dropped = standalone::CountDroppedNumbers(frameDuration, rate);
  const std::uint64_t number = standalone::ToDropFrameNumber(frame, rate, dropped);
  standalone::PutClock(text, number, rate, dropped != 0 ? ';' : ':');
}

void PutUnits(BackwardText& text, std::uint64_t units, TickTime frameDuration, Count count) {
  switch (count) {
    case Count::kDropFrame:
      return PutDropFrameTimecode(text, units, frameDuration);
    case Count::kFeetAndFrames16mm:
      return PutFeetAndFrames(text, units, kFramesPerFoot16mm);
    case Count::kFeetAndFrames35mm:
      return PutFeetAndFrames(text, units, kFramesPerFoot35mm);
    case Count::kFrames:
      return text.PutNumber(units, 1);
    case Count::kMilliseconds:
      return standalone::PutClock(text, units, kMillisecondsPerSecond, '.');
    case Count::kNonDropFrame:
    case Count::kAudioSamples:
      break;
  }
  standalone::PutClock(text, units, GetUnitsPerSecond(frameDuration), ':');
}

}  // namespace

Timecode::Timecode(TickTime time, TickTime frameDuration, qelmediatypes::TimeDisplay display) noexcept
    : time(time), frameDuration(frameDuration), display(display) {}

qelcore::UTF8String Timecode::GetStringUTF8() const {
  const std::int64_t units = CountUnits(time, frameDuration, display.count);
  const auto magnitude = static_cast<std::uint64_t>(units);
  BackwardText text;
  // The lowest number has no positive twin in 64 bits with a sign.
  PutUnits(text, units < 0 ? 0 - magnitude : magnitude, frameDuration, display.count);
  if (units < 0) text.Put('-');
  return qelcore::UTF8String(text.View());
}

}  // namespace ZSL
