#include "standalone/timeline/TimeEntry.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/qelmediatypes/FrameRate.h"
#include "standalone/services/DropFrame.h"

namespace standalone {
namespace {

using qelmediatypes::FrameRate;
using qelmediatypes::TickTime;
using Count = qelmediatypes::TimeDisplay::Count;

constexpr std::string_view kSeparators = ":;.,";
constexpr std::string_view kBlanks = " \t";
constexpr std::size_t kFieldCount = 4;
constexpr std::uint64_t kFramesPerFoot16mm = 40;
constexpr std::uint64_t kFramesPerFoot35mm = 16;
constexpr std::uint64_t kSecondsPerMinute = 60;
/// Beyond what any sequence holds, in any unit and in seconds; a million units a second do not make it
/// overflow.
constexpr std::uint64_t kLargestNumber = 1'000'000'000'000;

/// Hours, minutes, seconds, units.
using Fields = std::array<std::uint64_t, kFieldCount>;

std::optional<std::uint64_t> ReadNumber(std::string_view digits) {
  std::uint64_t number = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number);
  if (error != std::errc() || stop != end || number > kLargestNumber) return std::nullopt;
  return number;
}

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::vector<std::string_view> Split(std::string_view text) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t separator = text.find_first_of(kSeparators);
    parts.push_back(text.substr(0, separator));
    if (separator == std::string_view::npos) return parts;
    text.remove_prefix(separator + 1);
  }
}

/// Digits alone, cut from the right into fields of two, the last one of `unitDigits`.
std::vector<std::string_view> CutKeypadDigits(std::string_view digits, std::size_t unitDigits) {
  std::vector<std::string_view> parts;
  std::size_t width = unitDigits;
  while (digits.size() > width && parts.size() + 1 < kFieldCount) {
    parts.push_back(digits.substr(digits.size() - width));
    digits.remove_suffix(width);
    width = 2;
  }
  parts.push_back(digits);
  std::ranges::reverse(parts);
  return parts;
}

std::optional<Fields> ReadFields(const std::vector<std::string_view>& parts) {
  if (parts.size() > kFieldCount) return std::nullopt;
  Fields fields{};
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const auto number = ReadNumber(parts[i]);
    if (!number) return std::nullopt;
    fields[kFieldCount - parts.size() + i] = *number;
  }
  return fields;
}

std::optional<std::uint64_t> CountClockUnits(std::string_view text, std::uint64_t unitsPerSecond,
                                             std::size_t unitDigits, std::uint64_t dropped) {
  const bool isKeypad = text.find_first_of(kSeparators) == std::string_view::npos;
  const auto fields = ReadFields(isKeypad ? CutKeypadDigits(text, unitDigits) : Split(text));
  if (!fields) return std::nullopt;
  const auto [hours, minutes, seconds, units] = *fields;
  const std::uint64_t allSeconds = (hours * kSecondsPerMinute + minutes) * kSecondsPerMinute + seconds;
  const std::uint64_t number = std::min(allSeconds, kLargestNumber) * unitsPerSecond + units;
  return FromDropFrameNumber(number, unitsPerSecond, dropped);
}

std::optional<std::uint64_t> CountFilmFrames(std::string_view text, std::uint64_t framesPerFoot) {
  const std::size_t plus = text.find('+');
  if (plus == std::string_view::npos) return ReadNumber(text);
  const auto feet = ReadNumber(text.substr(0, plus));
  const auto frames = ReadNumber(text.substr(plus + 1));
  if (!feet || !frames) return std::nullopt;
  return *feet * framesPerFoot + *frames;
}

std::optional<std::uint64_t> CountUnits(std::string_view text, const TimeNotation& notation) {
  const auto rate = static_cast<std::uint64_t>(
      std::max<std::int64_t>(1, FrameRate(notation.frameDuration).GetNominalRate()));
  switch (notation.display.count) {
    case Count::kFrames:
      return ReadNumber(text);
    case Count::kFeetAndFrames16mm:
      return CountFilmFrames(text, kFramesPerFoot16mm);
    case Count::kFeetAndFrames35mm:
      return CountFilmFrames(text, kFramesPerFoot35mm);
    case Count::kAudioSamples:
      if (text.find_first_of(kSeparators) == std::string_view::npos) return ReadNumber(text);
      return CountClockUnits(text, rate, 2, 0);
    case Count::kMilliseconds:
      return CountClockUnits(text, 1000, 3, 0);
    case Count::kDropFrame:
      return CountClockUnits(text, rate, 2, CountDroppedNumbers(notation.frameDuration, rate));
    case Count::kNonDropFrame:
      break;
  }
  return CountClockUnits(text, rate, 2, 0);
}

/// Cut at the limits of 64 bits: the caller keeps what a sequence can hold.
TickTime ToTime(std::uint64_t units, const TimeNotation& notation) {
  const bool isInMilliseconds = notation.display.count == Count::kMilliseconds;
  const std::int64_t duration =
      isInMilliseconds ? TickTime::kTicksPerSecond / 1000 : notation.frameDuration.GetTicks();
  std::int64_t ticks = 0;
  const bool isTooLarge = __builtin_mul_overflow(units, duration, &ticks);
  return isTooLarge ? TickTime::Highest() : TickTime(ticks);
}

}  // namespace

std::optional<TickTime> ReadTimeEntry(std::string_view text, const TimeNotation& notation,
                                      TickTime current) {
  std::string_view rest = Trim(text);
  if (rest.empty()) return std::nullopt;
  const char sign = rest.front();
  const bool isRelative = sign == '+' || sign == '-';
  if (isRelative) rest = Trim(rest.substr(1));
  const bool isCounted =
      notation.display.count == Count::kMilliseconds || FrameRate(notation.frameDuration).IsKnown();
  const auto units = isCounted ? CountUnits(rest, notation) : std::nullopt;
  if (!units) return std::nullopt;
  const TickTime time = ToTime(*units, notation);
  if (!isRelative) return time - notation.zeroPoint;
  return sign == '+' ? current + time : current - time;
}

}  // namespace standalone
