#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/qelmediatypes/FrameRate.h"
#include "host/qelmediatypes/TickTime.h"
#include "standalone/runtime/StandaloneAPI.h"

/// Exact times of timeline files: a value counted at a rate, kept as integers and fractions and turned
/// into ticks with one rounding. Nothing here knows a file format. All of it is [any-thread].
namespace standalone {

__extension__ typedef __int128 Wide;

inline constexpr std::int64_t kUnitsPerOne = 1'000'000'000'000'000'000;

/// A number as a file writes it, exact to 18 decimals: `units` of 10^-18. Numbers beyond 10^15 are kept
/// as 10^15, far outside any timeline.
struct Decimal {
  Wide units = 0;

  friend constexpr bool operator==(Decimal, Decimal) noexcept = default;
};

/// Reads "24", "24.0", "-1.5e3"; empty for NaN, infinities and what is no number.
STANDALONE_API std::optional<Decimal> ParseDecimal(std::string_view text);

/// Frames or samples a second, a fraction in lowest terms, above 0 and below 10^9.
struct STANDALONE_API Rate {
  std::int64_t numerator = 24;
  std::int64_t denominator = 1;

  /// Time bases above 240 count samples or subdivisions of a frame.
  bool IsPictureRate() const noexcept { return numerator <= 240 * denominator; }
  qelmediatypes::FrameRate ToFrameRate() const noexcept;

  friend constexpr bool operator==(const Rate&, const Rate&) noexcept = default;
};

/// Reads a rate as files write it: "25", "30000/1001", and decimals. Decimals near a pulled rate mean
/// that rate: 23.976, 23.98, 29.97 and 59.94 are n * 1000/1001. Empty when it is no rate.
STANDALONE_API std::optional<Rate> ParseRate(std::string_view text);

/// "30000/1001", or "25" for a whole number.
STANDALONE_API std::string FormatRate(const Rate& rate);

/// Whether a text that ParseRate took for a pulled rate is a decimal with too few places to be that
/// rate itself: "29.97", but not "29.97002997".
STANDALONE_API bool IsRoundedRate(std::string_view text, const Rate& rate);

struct RationalTime {
  Decimal value;
  Rate rate;
};

/// A sum of times, kept exactly as one total for each rate, however many are added. A track seldom has
/// more than two rates; beyond 16 the further ones are kept to 2^-24 of a tick.
class STANDALONE_API TimeSum {
 public:
  void Add(const RationalTime& time);
  void Subtract(const RationalTime& time);
  void Add(const TimeSum& other);

  /// Rounded to the nearest tick; saturates.
  qelmediatypes::TickTime ToTicks() const;

 private:
  struct Term {
    Rate rate;
    Wide units = 0;
  };
  void AddUnits(const Rate& rate, Wide units);

  std::vector<Term> terms;
  Wide fineTicks = 0;
};

STANDALONE_API qelmediatypes::TickTime ToTicks(const RationalTime& time);

}  // namespace standalone
