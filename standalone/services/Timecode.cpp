#include "host/ZSL/Timecode.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "host/qelmediatypes/FrameRate.h"

namespace ZSL {
namespace {

using qelmediatypes::FrameRate;
using qelmediatypes::TickTime;
using qelmediatypes::TimeDisplay;

constexpr std::uint64_t kSecondsPerMinute = 60;
constexpr std::uint64_t kMinutesPerHour = 60;
constexpr std::uint64_t kDropCycleMinutes = 10;
constexpr unsigned kLeastDigits = 2;

/// Frame numbers left out at the start of each minute but every tenth, so that counting at the nominal
/// rate keeps pace with the clock; 0 where drop-frame counting is not defined.
std::uint64_t CountDroppedNumbers(TickTime frameDuration, std::uint64_t nominalRate) {
  constexpr std::uint64_t kLowestRate = 30;
  constexpr std::uint64_t kDroppedAtLowestRate = 2;
  if (nominalRate != 30 && nominalRate != 60 && nominalRate != 120) return 0;
  const auto pulled = FrameRate::FromRational(static_cast<std::int64_t>(nominalRate) * 1000, 1001);
  if (frameDuration != pulled.GetFrameDuration()) return 0;
  return nominalRate / kLowestRate * kDroppedAtLowestRate;
}

/// The number that a frame carries when `dropped` numbers a minute are left out.
std::uint64_t ToDropFrameNumber(std::uint64_t frame, std::uint64_t rate, std::uint64_t dropped) {
  const std::uint64_t fullMinute = rate * kSecondsPerMinute;
  const std::uint64_t shortMinute = fullMinute - dropped;
  const std::uint64_t cycle = fullMinute + (kDropCycleMinutes - 1) * shortMinute;
  const std::uint64_t inCycle = frame % cycle;
  std::uint64_t shortMinutes = frame / cycle * (kDropCycleMinutes - 1);
  if (inCycle >= fullMinute) shortMinutes += (inCycle - fullMinute) / shortMinute + 1;
  return frame + dropped * shortMinutes;
}

/// Writes a text from its end.
class BackwardText {
 public:
  void Put(char character) { characters[--begin] = character; }
  void PutNumber(std::uint64_t number, unsigned leastDigits) {
    for (unsigned digits = 0; digits < leastDigits || number != 0; ++digits) {
      Put(static_cast<char>('0' + number % 10));
      number /= 10;
    }
  }
  std::string_view View() const {
    return std::string_view(characters.data(), characters.size()).substr(begin);
  }

 private:
  // A sign, three separators, and at most twenty digits each for hours and frames.
  std::array<char, 64> characters;
  std::size_t begin = characters.size();
};

unsigned CountDigits(std::uint64_t number) {
  unsigned digits = 1;
  while (number >= 10) {
    number /= 10;
    ++digits;
  }
  return digits;
}

}  // namespace

Timecode::Timecode(TickTime time, TickTime frameDuration, TimeDisplay display) noexcept
    : time(time), frameDuration(frameDuration), display(display) {}

qelcore::UTF8String Timecode::GetStringUTF8() const {
  const FrameRate frameRate(frameDuration);
  const std::int64_t frame = frameRate.IsKnown() ? time.ToFrame64(frameDuration) : 0;
  const auto magnitude = static_cast<std::uint64_t>(frame);
  // Frames longer than two seconds round to no frame a second.
  const auto rate = std::max<std::uint64_t>(1, static_cast<std::uint64_t>(frameRate.GetNominalRate()));
  const std::uint64_t dropped =
      display.count == TimeDisplay::Count::kDropFrame ? CountDroppedNumbers(frameDuration, rate) : 0;
  const std::uint64_t number = ToDropFrameNumber(frame < 0 ? 0 - magnitude : magnitude, rate, dropped);

  BackwardText text;
  text.PutNumber(number % rate, std::max(kLeastDigits, CountDigits(rate - 1)));
  text.Put(dropped != 0 ? ';' : ':');
  const std::uint64_t seconds = number / rate;
  text.PutNumber(seconds % kSecondsPerMinute, kLeastDigits);
  text.Put(':');
  const std::uint64_t minutes = seconds / kSecondsPerMinute;
  text.PutNumber(minutes % kMinutesPerHour, kLeastDigits);
  text.Put(':');
  text.PutNumber(minutes / kMinutesPerHour, kLeastDigits);
  if (frame < 0) text.Put('-');
  return qelcore::UTF8String(text.View());
}

}  // namespace ZSL
