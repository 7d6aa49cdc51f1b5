#include "host/qelmediatypes/FrameRate.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

namespace {

using qelmediatypes::FrameRate;
using qelmediatypes::TickTime;

constexpr std::int64_t kHighest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLowest = std::numeric_limits<std::int64_t>::min();

TEST(TickTime, ASecondIsDivisibleByEveryPictureRate) {
  constexpr std::pair<std::int64_t, std::int64_t> kRates[] = {
      {24000, 1001}, {24, 1},       {25, 1}, {30000, 1001}, {30, 1},        {48, 1}, {48000, 1001},
      {50, 1},       {60000, 1001}, {60, 1}, {100, 1},      {120000, 1001}, {120, 1}};
  for (const auto& [numerator, denominator] : kRates) {
    EXPECT_EQ(TickTime::kTicksPerSecond * denominator % numerator, 0)
        << numerator << '/' << denominator;
    EXPECT_EQ(FrameRate::FromRational(numerator, denominator).GetFrameDuration().GetTicks(),
              TickTime::kTicksPerSecond * denominator / numerator);
  }
}

TEST(TickTime, ASecondIsDivisibleBySampleRatesButNotByPulledOnes) {
  for (const std::int64_t rate : {44100, 48000, 88200, 96000, 192000}) {
    EXPECT_EQ(TickTime::kTicksPerSecond % rate, 0) << rate;
  }
  EXPECT_NE(TickTime::kTicksPerSecond % 47952, 0);
}

TEST(TickTime, AHundredHours) {
  EXPECT_EQ(TickTime::kTicksPerSecond * 3600 * 100, qelmediatypes::kOneHundredHours.GetTicks());
}

TEST(TickTime, SumsStayAtTheLimits) {
  EXPECT_EQ((TickTime(kHighest) + TickTime(1)).GetTicks(), kHighest);
  EXPECT_EQ((TickTime(kLowest) + TickTime(-1)).GetTicks(), kLowest);
  EXPECT_EQ((TickTime(kLowest) - TickTime(1)).GetTicks(), kLowest);
  EXPECT_EQ((TickTime(0) - TickTime(kLowest)).GetTicks(), kHighest);
  EXPECT_EQ((TickTime(5) - TickTime(7)).GetTicks(), -2);
}

TEST(TickTime, FramesAreCutTowardZero) {
  EXPECT_EQ(TickTime(59).ToFrame64(TickTime(10)), 5);
  EXPECT_EQ(TickTime(-59).ToFrame64(TickTime(10)), -5);
  EXPECT_EQ(TickTime(59).ToFrame64(TickTime(0)), 0);
  EXPECT_EQ(TickTime(59).ToFrame64(TickTime(-10)), 0);
}

TEST(FrameRate, AnOddRateIsRoundedToTheNearestTick) {
  // 254016000000 / 47952 = 5297297.297...; 254016000000 * 2 / 19 ends in .9.
  EXPECT_EQ(FrameRate::FromRational(47952, 1).GetFrameDuration().GetTicks(), 5297297);
  EXPECT_EQ(FrameRate::FromRational(19, 2).GetFrameDuration().GetTicks(), 26738526316);
}

TEST(FrameRate, IsUnknownUnlessBothTermsArePositive) {
  EXPECT_FALSE(FrameRate().IsKnown());
  EXPECT_FALSE(FrameRate::FromRational(0, 1).IsKnown());
  EXPECT_FALSE(FrameRate::FromRational(25, 0).IsKnown());
  EXPECT_FALSE(FrameRate::FromRational(-25, -1).IsKnown());
  EXPECT_FALSE(FrameRate(TickTime(0)).IsKnown());
  EXPECT_FALSE(FrameRate(TickTime(-1)).IsKnown());
}

TEST(FrameRate, ExtremesDoNotOverflow) {
  EXPECT_FALSE(FrameRate::FromRational(1, kHighest).IsKnown());
  EXPECT_FALSE(FrameRate::FromRational(kHighest, 1).IsKnown());
  EXPECT_EQ(FrameRate::FromRational(kHighest, kHighest).GetNominalRate(), 1);
}

TEST(FrameRate, TheNominalRateIsRounded) {
  EXPECT_EQ(FrameRate::FromRational(30000, 1001).GetNominalRate(), 30);
  EXPECT_EQ(FrameRate::FromRational(24000, 1001).GetNominalRate(), 24);
  EXPECT_EQ(FrameRate::FromRational(25, 1).GetNominalRate(), 25);
  EXPECT_EQ(FrameRate::FromRational(12, 5).GetNominalRate(), 2);
  EXPECT_EQ(FrameRate().GetNominalRate(), 0);
}

}  // namespace
