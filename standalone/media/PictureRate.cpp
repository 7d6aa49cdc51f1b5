#include "standalone/media/PictureRate.h"

#include <array>
#include <cstdlib>

namespace standalone {
namespace {

__extension__ typedef __int128 Wide;

constexpr std::array kRatesInUse = {
    MediaRatio{24000, 1001}, MediaRatio{24, 1},       MediaRatio{25, 1},  MediaRatio{30000, 1001},
    MediaRatio{30, 1},       MediaRatio{48000, 1001}, MediaRatio{48, 1},  MediaRatio{50, 1},
    MediaRatio{60000, 1001}, MediaRatio{60, 1},       MediaRatio{100, 1}, MediaRatio{120000, 1001},
    MediaRatio{120, 1},
};

bool IsNear(const MediaRatio& rate, const MediaRatio& other) {
  constexpr Wide kTolerance = 2500;
  const Wide left = Wide{rate.numerator} * other.denominator;
  const Wide right = Wide{other.numerator} * rate.denominator;
  const Wide difference = left < right ? right - left : left - right;
  return difference * kTolerance < right;
}

}  // namespace

MediaRatio SettlePictureRate(MediaRatio rate) {
  constexpr Wide kHighestRate = 240;
  if (!rate.IsKnown() || rate.numerator > kHighestRate * rate.denominator) return {};
  for (const MediaRatio& known : kRatesInUse) {
    if (IsNear(rate, known)) return known;
  }
  return rate;
}

}  // namespace standalone
