#include <gtest/gtest.h>

#include "host/qelmediatypes/FrameRate.h"
#include "host/qelmediatypes/TickTime.h"

namespace {

using qelmediatypes::FrameRate;
using qelmediatypes::TickTime;

TEST(TickRates, OneHundredHoursGiveTheTicksOfASecond) {
  EXPECT_EQ(TickTime::kTicksPerSecond, 254016000000);
  EXPECT_EQ(qelmediatypes::kOneHundredHours.GetTicks() / (100 * 3600), TickTime::kTicksPerSecond);
  EXPECT_EQ(qelmediatypes::kOneHundredHours.GetTicks() % (100 * 3600), 0);
}

TEST(TickRates, EveryPictureRateInUseHasAWholeFrameDuration) {
  for (const std::int64_t rate : {24, 25, 30, 48, 50, 60, 96, 100, 120}) {
    EXPECT_EQ(TickTime::kTicksPerSecond % rate, 0) << rate;
    EXPECT_EQ(FrameRate::FromRational(rate, 1).GetFrameDuration().GetTicks(),
              TickTime::kTicksPerSecond / rate);
  }
  for (const std::int64_t rate : {24000, 30000, 48000, 60000, 120000}) {
    EXPECT_EQ(TickTime::kTicksPerSecond * 1001 % rate, 0) << rate;
    EXPECT_EQ(FrameRate::FromRational(rate, 1001).GetFrameDuration().GetTicks(),
              TickTime::kTicksPerSecond * 1001 / rate);
  }
}

TEST(TickRates, TheUsualSampleRatesHaveAWholeSampleDuration) {
  for (const std::int64_t rate : {44100, 48000, 88200, 96000, 192000}) {
    EXPECT_EQ(TickTime::kTicksPerSecond % rate, 0) << rate;
  }
}

TEST(TickRates, APulledSampleRateHasNot) {
  EXPECT_NE(TickTime::kTicksPerSecond % 47952, 0);
}

}  // namespace
