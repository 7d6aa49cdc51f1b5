#include "standalone/model/TimeFormat.h"

#include <gtest/gtest.h>

namespace standalone {
namespace {

TEST(TimeFormats, EachIsFoundByItsName) {
  EXPECT_EQ(FindTimeFormat("timecode"), TimeFormat::kTimecode);
  EXPECT_EQ(FindTimeFormat("frames"), TimeFormat::kFrames);
  EXPECT_EQ(FindTimeFormat("feet+frames 16mm"), TimeFormat::kFeetAndFrames16mm);
  EXPECT_EQ(FindTimeFormat("feet+frames 35mm"), TimeFormat::kFeetAndFrames35mm);
  EXPECT_EQ(FindTimeFormat("audio samples"), TimeFormat::kAudioSamples);
  EXPECT_EQ(FindTimeFormat("milliseconds"), TimeFormat::kMilliseconds);
}

TEST(TimeFormats, NamesStandInTheOrderOfTheFormats) {
  for (std::size_t i = 0; i < kTimeFormatNames.size(); ++i) {
    EXPECT_EQ(FindTimeFormat(kTimeFormatNames[i]), static_cast<TimeFormat>(i));
  }
}

TEST(TimeFormats, CapitalsAndTheSignsBetweenWordsDoNotMatter) {
  EXPECT_EQ(FindTimeFormat("Feet+Frames 16MM"), TimeFormat::kFeetAndFrames16mm);
  EXPECT_EQ(FindTimeFormat("feet-frames-16mm"), TimeFormat::kFeetAndFrames16mm);
  EXPECT_EQ(FindTimeFormat("feet_frames_35mm"), TimeFormat::kFeetAndFrames35mm);
  EXPECT_EQ(FindTimeFormat("AUDIO-SAMPLES"), TimeFormat::kAudioSamples);
}

TEST(TimeFormats, NoOtherTextIsAName) {
  for (const char* text : {"", "time code", "frame", "framess", "feet+frames", "feet+frames 8mm",
                           "audiosamples", " frames", "frames ", "samples"}) {
    EXPECT_EQ(FindTimeFormat(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace standalone
