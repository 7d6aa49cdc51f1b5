#include "standalone/timeline/TimeScale.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace standalone {

using qelmediatypes::TickTime;

namespace {

constexpr double kWidestFrame = 64;
constexpr double kRoomBehindEnd = 1.05;
/// Where a revealed time stands, as a part of the width.
constexpr double kRevealMargin = 0.1;

double ToTicks(TickTime time) {
  return static_cast<double>(time.GetTicks());
}

/// A time of a sequence: from 0 to 100 hours, where every sequence ends.
TickTime Limit(double ticks) {
  return TickTime(std::llround(std::clamp(ticks, 0.0, ToTicks(qelmediatypes::kOneHundredHours))));
}

}  // namespace

void TimeScale::SetWidth(double pixels) noexcept {
  width = std::max(pixels, 1.0);
  SetTicksPerPixel(ticksPerPixel);
}

void TimeScale::SetFrameDuration(TickTime newDuration) noexcept {
  const bool isUsable = newDuration > TickTime() && newDuration < qelmediatypes::kOneHundredHours;
  frameDuration = isUsable ? newDuration : TickTime(TickTime::kTicksPerSecond / 24);
  SetTicksPerPixel(ticksPerPixel);
}

double TimeScale::ToX(TickTime time) const noexcept {
  return (ToTicks(time) - ToTicks(start)) / ticksPerPixel;
}

TickTime TimeScale::ToTime(double x) const noexcept {
  return Limit(ToTicks(start) + x * ticksPerPixel);
}

void TimeScale::ScrollTo(TickTime newStart) noexcept {
  start = Limit(ToTicks(newStart));
}

void TimeScale::ZoomBy(double factor, double x) noexcept {
  const double fixed = ToTicks(start) + x * ticksPerPixel;
  SetTicksPerPixel(ticksPerPixel * factor);
  start = Limit(fixed - x * ticksPerPixel);
}

void TimeScale::Fit(TickTime end) noexcept {
  start = TickTime();
  SetTicksPerPixel(std::max(ToTicks(end), ToTicks(frameDuration)) * kRoomBehindEnd / width);
}

void TimeScale::Reveal(TickTime time) noexcept {
  const double x = ToX(time);
  if (x < 0) {
    start = Limit(ToTicks(time) - width * kRevealMargin * ticksPerPixel);
  } else if (x > width) {
    start = Limit(ToTicks(time) - width * (1 - kRevealMargin) * ticksPerPixel);
  }
}

void TimeScale::SetTicksPerPixel(double wanted) noexcept {
  const double finest = ToTicks(frameDuration) / kWidestFrame;
  const double coarsest = ToTicks(qelmediatypes::kOneHundredHours) / width;
  ticksPerPixel = std::clamp(wanted, std::min(finest, coarsest), coarsest);
}

}  // namespace standalone
