#include "standalone/import/OtioRates.h"

#include <gtest/gtest.h>

#include "import/DraftText.h"
#include "import/OtioText.h"

namespace standalone {
namespace {

std::string ClipAt(const std::string& rate, const std::string& duration,
                   const std::string& extra = "") {
  return otio::Item("Clip.2", "", R"(, "source_range": )" + otio::Range("0", duration, rate) + extra);
}

std::int64_t VideoOf(const std::string& timeline) {
  return otio::Read(timeline).document.sequences.at(0).videoRate.GetFrameDuration().GetTicks();
}

std::int64_t AudioOf(const std::string& timeline) {
  return otio::Read(timeline).document.sequences.at(0).audioRate.GetFrameDuration().GetTicks();
}

const std::string kStartAt24 = R"(, "global_start_time": )" + otio::Time("0", "24");

TEST(SequenceRates, OurKeyComesFirst) {
  const std::string index = otio::Index(R"("frame_rate": "30000/1001")");
  EXPECT_EQ(VideoOf(otio::Timeline({otio::Track({ClipAt("25", "10")})}, kStartAt24 + index)),
            draft::k2997);
  EXPECT_EQ(VideoOf(otio::Timeline({}, otio::Index(R"("frame_rate": 25)"))), draft::k25);
}

TEST(SequenceRates, ThenTheStartTimes) {
  EXPECT_EQ(VideoOf(otio::Timeline({otio::Track({ClipAt("25", "10")})}, kStartAt24)), draft::k24);
}

TEST(SequenceRates, AStartTimeInSamplesIsNoPictureRate) {
  const std::string start = R"(, "global_start_time": )" + otio::Time("0", "48000");
  EXPECT_EQ(VideoOf(otio::Timeline({otio::Track({ClipAt("25", "10")})}, start)), draft::k25);
}

TEST(SequenceRates, ANestedItemWithoutARangeCountsByWhatItHolds) {
  const std::string sound = otio::Track({ClipAt("30", "10")}, "Audio");
  const std::string nested = otio::Stack({sound, otio::Track({ClipAt("25", "10")})}, "Nested");
  const std::string after = ClipAt("30", "10");
  EXPECT_EQ(VideoOf(otio::Timeline({otio::Track({nested, after})})), draft::k25);
  EXPECT_EQ(VideoOf(otio::Timeline({otio::Track({otio::Stack({nested}, "Outer"), after})})),
            draft::k25);
  const std::string range = R"(, "source_range": )" + otio::Range("0", "5", "30");
  const std::string cut = otio::Stack({otio::Track({ClipAt("25", "10")})}, "Cut", range);
  EXPECT_EQ(VideoOf(otio::Timeline({otio::Track({cut})})), draft::k30);
}

TEST(SequenceRates, ThenTheFirstVideoItemsThenTheFirstAudioItems) {
  const std::string audio = otio::Track({ClipAt("30", "10")}, "Audio");
  EXPECT_EQ(VideoOf(otio::Timeline({audio, otio::Track({otio::Gap("5"), ClipAt("24", "10")})})),
            draft::k25);
  EXPECT_EQ(VideoOf(otio::Timeline({audio})), draft::k30);
}

TEST(SequenceRates, Then24) {
  EXPECT_EQ(VideoOf(otio::Timeline({})), draft::k24);
  EXPECT_EQ(VideoOf(otio::Timeline({otio::Track({ClipAt("48000", "10")}, "Audio")})), draft::k24);
}

TEST(SequenceRates, VideoInAFineTimeBaseTakesTheMediasRate) {
  const std::string media =
      otio::Media(otio::File("a.mov", R"(, "available_range": )" + otio::Range("0", "100", "30")));
  EXPECT_EQ(VideoOf(otio::Timeline({otio::Track({ClipAt("24000", "1001", media)})})), draft::k30);
}

TEST(SequenceRates, VideoInAFineTimeBaseAloneGivesItsCommonStep) {
  EXPECT_EQ(
      VideoOf(otio::Timeline({otio::Track({ClipAt("24000", "24024"), ClipAt("24000", "48048")})})),
      10594584000);
  EXPECT_EQ(VideoOf(otio::Timeline({otio::Track({ClipAt("90000", "3600"), ClipAt("90000", "7200")})})),
            draft::k25);
}

TEST(SequenceRates, ANestedSequenceWithoutItemsRunsAtItsParents) {
  const ImportResult result =
      otio::Read(otio::Timeline({otio::Track({ClipAt("30", "10"), otio::Stack({}, "Empty")})}));
  EXPECT_EQ(result.document.sequences.at(1).videoRate.GetFrameDuration().GetTicks(), draft::k30);
}

TEST(SequenceRates, SoundTakesOurKeyThenTheFirstSampleRateThen48000) {
  const std::string audio = otio::Track({ClipAt("25", "10"), ClipAt("44100", "10")}, "Audio");
  EXPECT_EQ(AudioOf(otio::Timeline({audio}, otio::Index(R"("audio_rate": 96000)"))), 2646000);
  EXPECT_EQ(AudioOf(otio::Timeline({audio})), draft::k44100);
  EXPECT_EQ(AudioOf(otio::Timeline({})), draft::k48000);
}

TEST(ClipRates, PictureComesFromTheMediaAndIsUnknownWithoutIt) {
  const auto rate = [](const std::string& media) {
    return otio::ReadOnly(otio::Clip("A", "10", otio::Media(media))).frameDuration;
  };
  const std::string range30 = R"(, "available_range": )" + otio::Range("0", "100", "30");
  EXPECT_EQ(rate(otio::File("a.mov", range30)).GetTicks(), draft::k30);
  EXPECT_EQ(rate(otio::File("a.mov")), qelmediatypes::kUnknownFrameDuration);
  EXPECT_EQ(rate(otio::File("a.wav", R"(, "available_range": )" + otio::Range("0", "1", "48000"))),
            qelmediatypes::kUnknownFrameDuration);
  EXPECT_EQ(rate(otio::Item("ImageSequenceReference.1", "", R"(, "rate": 24)")).GetTicks(), draft::k24);
  EXPECT_EQ(rate(otio::Item("GeneratorReference.1", "")).GetTicks(), draft::k25);
}

TEST(ClipRates, SoundNeverHasAPictureRate) {
  const auto rate = [](const std::string& extra) {
    return otio::ReadOnly(otio::Clip("A", "10", otio::Media(otio::File("a.wav", extra))), "Audio")
        .frameDuration.GetTicks();
  };
  EXPECT_EQ(rate(R"(, "available_range": )" + otio::Range("0", "1", "44100")), draft::k44100);
  EXPECT_EQ(rate(R"(, "available_range": )" + otio::Range("0", "1", "25")), draft::k48000);
  EXPECT_EQ(rate(""), draft::k48000);
}

TEST(ClipRates, SoundOfUnknownRateTakesTheTimelinesNamedRate) {
  const ImportResult result = otio::Read(otio::Timeline({otio::Track({otio::Clip("A", "10")}, "Audio")},
                                                        otio::Index(R"("audio_rate": 96000)")));
  EXPECT_EQ(result.document.sequences.at(0).tracks.at(0).items.at(0).clip->frameDuration.GetTicks(),
            2646000);
}

}  // namespace
}  // namespace standalone
