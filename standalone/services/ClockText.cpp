#include "standalone/services/ClockText.h"

namespace standalone {
namespace {

constexpr std::uint64_t kSecondsPerMinute = 60;
constexpr std::uint64_t kMinutesPerHour = 60;
constexpr unsigned kLeastDigits = 2;

unsigned CountDigits(std::uint64_t number) {
  unsigned digits = 1;
  while (number >= 10) {
    number /= 10;
    ++digits;
  }
  return digits;
}

/// As many as the highest number within a second has, two at least; two of most pictures.
unsigned CountUnitDigits(std::uint64_t unitsPerSecond) {
  return unitsPerSecond <= 100 ? kLeastDigits : CountDigits(unitsPerSecond - 1);
}

}  // namespace

void PutClock(BackwardText& text, std::uint64_t units, std::uint64_t unitsPerSecond, char separator) {
  const std::uint64_t seconds = units / unitsPerSecond;
  text.PutNumber(units - seconds * unitsPerSecond, CountUnitDigits(unitsPerSecond));
  text.Put(separator);
  text.PutNumber(seconds % kSecondsPerMinute, kLeastDigits);
  text.Put(':');
  const std::uint64_t minutes = seconds / kSecondsPerMinute;
  text.PutNumber(minutes % kMinutesPerHour, kLeastDigits);
  text.Put(':');
  text.PutNumber(minutes / kMinutesPerHour, kLeastDigits);
}

}  // namespace standalone
