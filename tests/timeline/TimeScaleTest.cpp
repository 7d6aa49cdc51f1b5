#include "standalone/timeline/TimeScale.h"

#include <gtest/gtest.h>

#include "host/qelmediatypes/FrameRate.h"

namespace standalone {
namespace {

using qelmediatypes::TickTime;

constexpr TickTime kSecond{TickTime::kTicksPerSecond};

TickTime Seconds(std::int64_t count) {
  return TickTime(count * TickTime::kTicksPerSecond);
}

TimeScale MakeScale() {
  TimeScale scale;
  scale.SetWidth(1000);
  return scale;
}

TEST(TimeScale, ATimeAndItsPixelMapToEachOther) {
  TimeScale scale = MakeScale();
  scale.ScrollTo(Seconds(10));
  EXPECT_DOUBLE_EQ(scale.ToX(Seconds(10)), 0);
  EXPECT_DOUBLE_EQ(scale.ToX(Seconds(12)), 20);
  EXPECT_EQ(scale.ToTime(20), Seconds(12));
  EXPECT_DOUBLE_EQ(scale.ToX(Seconds(9)), -10);
}

TEST(TimeScale, ZoomingKeepsTheTimeUnderThePointer) {
  TimeScale scale = MakeScale();
  scale.ScrollTo(Seconds(60));
  const TickTime before = scale.ToTime(250);
  scale.ZoomBy(0.5, 250);
  EXPECT_NEAR(static_cast<double>(scale.ToTime(250).GetTicks()), static_cast<double>(before.GetTicks()),
              scale.GetTicksPerPixel());
  EXPECT_DOUBLE_EQ(scale.GetTicksPerPixel(), TickTime::kTicksPerSecond / 20.0);
}

TEST(TimeScale, NothingBeforeTheBeginningIsShown) {
  TimeScale scale = MakeScale();
  scale.ScrollTo(Seconds(-5));
  EXPECT_EQ(scale.GetStart(), TickTime());
  scale.ZoomBy(100, 500);
  EXPECT_EQ(scale.GetStart(), TickTime());
}

TEST(TimeScale, AFrameTakes64PixelsAtMost) {
  TimeScale scale = MakeScale();
  scale.SetFrameDuration(qelmediatypes::FrameRate::FromRational(25, 1).GetFrameDuration());
  for (int i = 0; i < 100; ++i) scale.ZoomBy(0.5, 0);
  EXPECT_DOUBLE_EQ(scale.GetTicksPerPixel(), TickTime::kTicksPerSecond / 25.0 / 64);
}

TEST(TimeScale, AHundredHoursIsTheMostThatIsShown) {
  TimeScale scale = MakeScale();
  for (int i = 0; i < 100; ++i) scale.ZoomBy(2, 0);
  EXPECT_EQ(scale.GetEnd(), qelmediatypes::kOneHundredHours);
}

TEST(TimeScale, FittingShowsEverythingWithALittleRoomBehind) {
  TimeScale scale = MakeScale();
  scale.ScrollTo(Seconds(500));
  scale.Fit(Seconds(100));
  EXPECT_EQ(scale.GetStart(), TickTime());
  EXPECT_GT(scale.GetEnd(), Seconds(100));
  EXPECT_LT(scale.GetEnd(), Seconds(110));
}

TEST(TimeScale, FittingNothingShowsAFrame) {
  TimeScale scale = MakeScale();
  scale.Fit(TickTime());
  EXPECT_GT(scale.GetTicksPerPixel(), 0);
}

TEST(TimeScale, RevealingScrollsOnlyWhenTheTimeIsOutOfView) {
  TimeScale scale = MakeScale();
  scale.Reveal(Seconds(50));
  EXPECT_EQ(scale.GetStart(), TickTime());
  scale.Reveal(Seconds(200));
  EXPECT_NEAR(scale.ToX(Seconds(200)), 900, 1);
  scale.Reveal(Seconds(105));
  EXPECT_NEAR(scale.ToX(Seconds(105)), 100, 1);
}

TEST(TimeScale, AnUnknownFrameDurationCountsAsA24th) {
  TimeScale scale = MakeScale();
  scale.SetFrameDuration(qelmediatypes::kUnknownFrameDuration);
  for (int i = 0; i < 100; ++i) scale.ZoomBy(0.5, 0);
  EXPECT_DOUBLE_EQ(scale.GetTicksPerPixel(), kSecond.GetTicks() / 24.0 / 64);
}

}  // namespace
}  // namespace standalone
