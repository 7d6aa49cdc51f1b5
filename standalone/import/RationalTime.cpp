#include "standalone/import/RationalTime.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <numeric>

namespace standalone {
namespace {

constexpr std::int64_t kTicksPerSecond = qelmediatypes::TickTime::kTicksPerSecond;
constexpr int kUnitDigits = 18;
constexpr Wide kLargestUnits = Wide{kUnitsPerOne} * 1'000'000'000'000'000;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// The digits of a number without its point, and the power of ten that puts the point back.
struct Digits {
  Wide significand = 0;
  std::int64_t exponent = 0;
  bool isNegative = false;
};

/// 36 digits fit; later ones lie below 18 decimals or beyond the largest number.
void TakeDigit(Digits& digits, char digit, bool isDecimal) {
  constexpr Wide kRoomForOneMore = kLargestUnits * 1000;
  if (digits.significand < kRoomForOneMore) {
    digits.significand = digits.significand * 10 + (digit - '0');
    if (isDecimal) --digits.exponent;
  } else if (!isDecimal) {
    ++digits.exponent;
  }
}

std::optional<std::int64_t> ParseExponent(std::string_view text) {
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  int exponent = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), exponent);
  if (end != text.data() + text.size() || error == std::errc::invalid_argument) return std::nullopt;
  if (error == std::errc{}) return exponent;
  constexpr std::int64_t kBeyondAnyNumber = std::numeric_limits<int>::max();
  return text.front() == '-' ? -kBeyondAnyNumber : kBeyondAnyNumber;
}

std::optional<Digits> SplitDigits(std::string_view text) {
  Digits digits;
  if (!text.empty() && text.front() == '-') {
    digits.isNegative = true;
    text.remove_prefix(1);
  }
  bool hasDigits = false;
  bool isDecimal = false;
  while (!text.empty() && (IsDigit(text.front()) || (text.front() == '.' && !isDecimal))) {
    if (text.front() == '.') {
      isDecimal = true;
    } else {
      hasDigits = true;
      TakeDigit(digits, text.front(), isDecimal);
    }
    text.remove_prefix(1);
  }
  if (!hasDigits) return std::nullopt;
  if (text.empty()) return digits;
  if (text.front() != 'e' && text.front() != 'E') return std::nullopt;
  const auto exponent = ParseExponent(text.substr(1));
  if (!exponent) return std::nullopt;
  digits.exponent += *exponent;
  return digits;
}

/// significand * 10^exponent in units, rounded to the nearest one.
Wide ScaleToUnits(Wide significand, std::int64_t exponent) {
  std::int64_t power = exponent + kUnitDigits;
  for (; power > 0 && significand != 0 && significand <= kLargestUnits; --power) significand *= 10;
  for (; power < -1 && significand != 0; ++power) significand /= 10;
  if (power == -1) significand = (significand + 5) / 10;
  return std::min(significand, kLargestUnits);
}

constexpr std::array<std::int64_t, kUnitDigits + 1> kPowersOfTen = [] {
  std::array<std::int64_t, kUnitDigits + 1> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}();

/// A number of few enough digits that 64 bits hold them, without an exponent, as nearly all are; empty
/// for any other text.
std::optional<Decimal> ParseShortDecimal(std::string_view text) {
  const bool isNegative = text.starts_with('-');
  if (isNegative) text.remove_prefix(1);
  std::int64_t significand = 0;
  std::size_t point = text.size();
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsDigit(text[i])) {
      significand = significand * 10 + (text[i] - '0');
    } else if (text[i] == '.' && point == text.size()) {
      point = i;
    } else {
      return std::nullopt;
    }
  }
  const std::size_t decimals = point == text.size() ? 0 : text.size() - point - 1;
  if (point + decimals == 0) return std::nullopt;
  const Wide units = Wide{significand} * kPowersOfTen[kUnitDigits - decimals];
  return Decimal{isNegative ? -units : units};
}

std::optional<Rate> MakeRate(Wide numerator, Wide denominator) {
  constexpr std::int64_t kLargestDenominator = 1'000'000'000;
  if (numerator <= 0 || denominator <= 0) return std::nullopt;
  if (numerator >= kLargestDenominator * denominator) return std::nullopt;
  if (denominator > kLargestDenominator) return std::nullopt;
  const auto top = static_cast<std::int64_t>(numerator);
  const auto bottom = static_cast<std::int64_t>(denominator);
  const std::int64_t common = std::gcd(top, bottom);
  return Rate{top / common, bottom / common};
}

/// Files write pulled picture rates with two or three decimals ("23.98", "29.97"): 0.03 % takes the
/// loosest of them and none of the neighbours. With full precision any n * 1000/1001 is meant.
std::optional<Rate> FindPulledRate(Wide units) {
  constexpr std::array kNominalRates = {24, 30, 48, 60, 72, 90, 96, 120, 144, 180, 192, 240};
  constexpr Wide kThousand = Wide{kUnitsPerOne} * 1000;
  const auto distance = [units](std::int64_t nominal) {
    const Wide difference = units * 1001 - nominal * kThousand;
    return difference < 0 ? -difference : difference;
  };
  for (const int nominal : kNominalRates) {
    if (distance(nominal) * 10'000 <= nominal * kThousand * 3) return MakeRate(nominal * 1000, 1001);
  }
  const auto nearest = static_cast<std::int64_t>((units * 1001 + kThousand / 2) / kThousand);
  if (nearest > 0 && distance(nearest) <= nearest * kThousand / 1'000'000'000) {
    return MakeRate(Wide{nearest} * 1000, 1001);
  }
  return std::nullopt;
}

std::optional<Rate> RateOfDecimal(Decimal value) {
  if (value.units <= 0) return std::nullopt;
  if (value.units >= Wide{kUnitsPerOne} * 1'000'000'000) return std::nullopt;
  if (value.units % kUnitsPerOne == 0) return MakeRate(value.units / kUnitsPerOne, 1);
  if (const auto pulled = FindPulledRate(value.units)) return pulled;
  constexpr std::int64_t kNineDecimals = 1'000'000'000;
  return MakeRate((value.units + kNineDecimals / 2) / kNineDecimals, kNineDecimals);
}

/// A whole number, as most rates are; empty for any other text.
std::optional<Rate> ParseWholeRate(std::string_view text) {
  constexpr std::size_t kMostDigits = 9;
  std::size_t length = 0;
  std::int64_t frames = 0;
  for (; length < text.size() && length < kMostDigits && IsDigit(text[length]); ++length) {
    frames = frames * 10 + (text[length] - '0');
  }
  text.remove_prefix(length);
  if (text.starts_with('.')) text.remove_prefix(std::min(text.find_first_not_of('0', 1), text.size()));
  if (frames == 0 || !text.empty()) return std::nullopt;
  return Rate{frames, 1};
}

/// Parts of a tick; fine enough that the sum of a few can't miss the nearest tick but at a tie.
constexpr int kFractionBits = 24;
constexpr Wide kLargestFineTicks = Wide{1} << 120;

/// units / 10^18 / rate seconds in 2^-24 ticks. The whole part of the value and its decimals are
/// divided apart so that all products stay below 2^127.
Wide ToFineTicks(const Rate& rate, Wide units) {
  const Wide magnitude = std::min(units < 0 ? -units : units, kLargestUnits);
  const Wide wholeProduct = magnitude / kUnitsPerOne * rate.denominator * kTicksPerSecond;
  constexpr std::int64_t kTrillion = 1'000'000'000'000;
  const Wide rest = wholeProduct % rate.numerator * kTrillion +
                    magnitude % kUnitsPerOne * rate.denominator * (kTicksPerSecond / 1'000'000);
  const Wide divisor = Wide{rate.numerator} * kTrillion;
  const Wide whole = std::min(wholeProduct / rate.numerator + rest / divisor, kLargestFineTicks >> 24);
  const Wide ticks = (whole << kFractionBits) + (rest % divisor << kFractionBits) / divisor;
  return units < 0 ? -ticks : ticks;
}

Wide AddFineTicks(Wide left, Wide right) {
  return std::clamp(left + right, -kLargestFineTicks, kLargestFineTicks);
}

qelmediatypes::TickTime Round(Wide fineTicks) {
  constexpr Wide kHalf = Wide{1} << (kFractionBits - 1);
  constexpr Wide kLowest = std::numeric_limits<std::int64_t>::min();
  constexpr Wide kHighest = std::numeric_limits<std::int64_t>::max();
  const Wide ticks = (fineTicks + kHalf) >> kFractionBits;
  return qelmediatypes::TickTime(static_cast<std::int64_t>(std::clamp(ticks, kLowest, kHighest)));
}

}  // namespace

std::optional<Decimal> ParseDecimal(std::string_view text) {
  constexpr std::size_t kShort = 15;
  if (text.size() <= kShort) {
    if (const auto number = ParseShortDecimal(text)) return number;
  }
  const auto digits = SplitDigits(text);
  if (!digits) return std::nullopt;
  const Wide units = ScaleToUnits(digits->significand, digits->exponent);
  return Decimal{digits->isNegative ? -units : units};
}

qelmediatypes::FrameRate Rate::ToFrameRate() const noexcept {
  return qelmediatypes::FrameRate::FromRational(numerator, denominator);
}

std::optional<Rate> ParseRate(std::string_view text) {
  if (const auto whole = ParseWholeRate(text)) return whole;
  const std::size_t slash = text.find('/');
  const auto first = ParseDecimal(text.substr(0, slash));
  if (!first) return std::nullopt;
  if (slash == std::string_view::npos) return RateOfDecimal(*first);
  const auto second = ParseDecimal(text.substr(slash + 1));
  if (!second || first->units % kUnitsPerOne != 0 || second->units % kUnitsPerOne != 0) {
    return std::nullopt;
  }
  return MakeRate(first->units / kUnitsPerOne, second->units / kUnitsPerOne);
}

std::string FormatRate(const Rate& rate) {
  const std::string frames = std::to_string(rate.numerator);
  return rate.denominator == 1 ? frames : frames + "/" + std::to_string(rate.denominator);
}

bool IsRoundedRate(std::string_view text, const Rate& rate) {
  constexpr std::size_t kExactDecimals = 8;
  constexpr std::int64_t kPulled = 1001;
  if (rate.denominator != kPulled) return false;
  const std::size_t point = text.find('.');
  return point != std::string_view::npos && text.size() - point - 1 < kExactDecimals;
}

void TimeSum::AddUnits(const Rate& rate, Wide units) {
  constexpr std::size_t kMostTerms = 16;
  constexpr Wide kLimit = kLargestUnits * 1000;
  for (Term& term : terms) {
    if (term.rate != rate) continue;
    term.units = std::clamp(term.units + units, -kLimit, kLimit);
    return;
  }
  if (terms.size() < kMostTerms) {
    terms.push_back(Term{rate, units});
  } else {
    fineTicks = AddFineTicks(fineTicks, ToFineTicks(rate, units));
  }
}

void TimeSum::Add(const RationalTime& time) {
  AddUnits(time.rate, time.value.units);
}

void TimeSum::Subtract(const RationalTime& time) {
  AddUnits(time.rate, -time.value.units);
}

void TimeSum::Add(const TimeSum& other) {
  for (const Term& term : other.terms) AddUnits(term.rate, term.units);
  fineTicks = AddFineTicks(fineTicks, other.fineTicks);
}

qelmediatypes::TickTime TimeSum::ToTicks() const {
  Wide sum = fineTicks;
  for (const Term& term : terms) sum = AddFineTicks(sum, ToFineTicks(term.rate, term.units));
  return Round(sum);
}

qelmediatypes::TickTime ToTicks(const RationalTime& time) {
  return Round(ToFineTicks(time.rate, time.value.units));
}

}  // namespace standalone
