#include <gtest/gtest.h>

#include "host/MZ/Clips.h"
#include "host/qelmediatypes/FrameRate.h"

namespace {

using qelmediatypes::FrameRate;
using qelmediatypes::TickTime;

qelcore::UTF8String PictureRate(std::int64_t numerator, std::int64_t denominator) {
  constexpr int kStyle = 0;
  return MZ::SettingsDescriptions::CreateVideoFrameRateString(
      FrameRate::FromRational(numerator, denominator).GetFrameDuration(), kStyle);
}

qelcore::UTF8String SampleRate(std::int64_t rate) {
  return MZ::SettingsDescriptions::CreateAudioSampleRateString(
      FrameRate::FromRational(rate, 1).GetFrameDuration());
}

TEST(SettingsDescriptions, APictureRateHasTwoDecimalsOrThreeWhereItNeedsThem) {
  EXPECT_EQ(PictureRate(24, 1), "24.00 fps");
  EXPECT_EQ(PictureRate(25, 1), "25.00 fps");
  EXPECT_EQ(PictureRate(100, 1), "100.00 fps");
  EXPECT_EQ(PictureRate(24000, 1001), "23.976 fps");
  EXPECT_EQ(PictureRate(30000, 1001), "29.97 fps");
  EXPECT_EQ(PictureRate(48000, 1001), "47.952 fps");
  EXPECT_EQ(PictureRate(60000, 1001), "59.94 fps");
  EXPECT_EQ(PictureRate(120000, 1001), "119.88 fps");
  EXPECT_EQ(PictureRate(25, 2), "12.50 fps");
  EXPECT_EQ(PictureRate(1, 10), "0.10 fps");
  EXPECT_EQ(PictureRate(1, 1000000), "0.00 fps");
}

TEST(SettingsDescriptions, APictureRateIsRoundedToTheNearestThousandth) {
  EXPECT_EQ(PictureRate(299996, 10000), "30.00 fps");
  EXPECT_EQ(PictureRate(1, 3), "0.333 fps");
  EXPECT_EQ(PictureRate(2, 3), "0.667 fps");
}

TEST(SettingsDescriptions, ASampleRateIsRoundedToTheNearestHertz) {
  EXPECT_EQ(SampleRate(44100), "44100 Hz");
  EXPECT_EQ(SampleRate(48000), "48000 Hz");
  EXPECT_EQ(SampleRate(47952), "47952 Hz");
  EXPECT_EQ(SampleRate(192000), "192000 Hz");
}

TEST(SettingsDescriptions, AnUnknownRateHasNoText) {
  for (const TickTime unknown : {qelmediatypes::kUnknownFrameDuration, TickTime(0), TickTime(-1)}) {
    EXPECT_EQ(MZ::SettingsDescriptions::CreateVideoFrameRateString(unknown, 0), "");
    EXPECT_EQ(MZ::SettingsDescriptions::CreateAudioSampleRateString(unknown), "");
  }
}

}  // namespace
