#include <cstdint>
#include <string>

#include "host/MZ/Clips.h"
#include "host/qelmediatypes/FrameRate.h"

namespace MZ::SettingsDescriptions {
namespace {

using qelmediatypes::TickTime;

constexpr std::uint64_t kThousandths = 1000;

/// `dividend / divisor` to the nearest whole number, halves upward.
std::uint64_t DivideToNearest(std::uint64_t dividend, std::uint64_t divisor) {
  const std::uint64_t quotient = dividend / divisor;
  const std::uint64_t rest = dividend % divisor;
  return rest >= divisor - rest ? quotient + 1 : quotient;
}

/// Frames in `seconds` seconds.
std::uint64_t CountFrames(TickTime frameDuration, std::uint64_t seconds) {
  return DivideToNearest(static_cast<std::uint64_t>(TickTime::kTicksPerSecond) * seconds,
                         static_cast<std::uint64_t>(frameDuration.GetTicks()));
}

}  // namespace

qelcore::UTF8String CreateVideoFrameRateString(TickTime frameDuration, int /*style*/) {
  if (!qelmediatypes::FrameRate(frameDuration).IsKnown()) return {};
  const std::uint64_t thousandths = CountFrames(frameDuration, kThousandths);
  std::string text = std::to_string(thousandths / kThousandths);
  const std::string decimals = std::to_string(kThousandths + thousandths % kThousandths).substr(1);
  text += '.';
  text += decimals.back() == '0' ? decimals.substr(0, 2) : decimals;
  text += " fps";
  return qelcore::UTF8String(text);
}

qelcore::UTF8String CreateAudioSampleRateString(TickTime frameDuration) {
  if (!qelmediatypes::FrameRate(frameDuration).IsKnown()) return {};
  return qelcore::UTF8String(std::to_string(CountFrames(frameDuration, 1)) + " Hz");
}

}  // namespace MZ::SettingsDescriptions
