#include "standalone/import/OtioSequences.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "import/DraftText.h"
#include "import/Fixtures.h"
#include "import/OtioText.h"

namespace standalone {
namespace {

using testing::ElementsAre;

SequenceDraft ReadSequence(const std::string& timeline) {
  return otio::Read(timeline).document.sequences.at(0);
}

std::string Nest(int levels) {
  std::string text = otio::Clip("Inner", "10");
  for (int i = 0; i < levels; ++i) text = otio::Stack({text});
  return text;
}

TEST(Sequences, NestedItemsBecomeClipsThatPlayFurtherSequences) {
  const ImportResult result = fixtures::Read("nested.otio");
  EXPECT_EQ(result.document.timelineCount, 1u);
  const auto& sequences = result.document.sequences;
  std::vector<std::string> names;
  for (const SequenceDraft& sequence : sequences) names.push_back(sequence.name);
  EXPECT_THAT(names, ElementsAre("Nested", "Titles", "Nested sequence", "Inner stack", "Nested track",
                                 "Loose stack"));
  EXPECT_THAT(
      draft::Rows(sequences[0], draft::k25),
      ElementsAre("V1 0-10 A", "V1 10-60 Titles", "V1 60-97 Nested sequence", "V1 97-107 Nested track",
                  "V1 107-117 Z", "V2 0-20 Loose stack", "V3 0-15 Loose clip"));
  EXPECT_EQ(fixtures::Clip(sequences[0], 0, 1).nestedSequence, 1u);
  EXPECT_EQ(fixtures::Clip(sequences[0], 0, 2).nestedSequence, 2u);
  EXPECT_EQ(fixtures::Clip(sequences[2], 1, 0).nestedSequence, 3u);
  EXPECT_EQ(fixtures::Clip(sequences[0], 0, 3).nestedSequence, 4u);
  EXPECT_EQ(fixtures::Clip(sequences[0], 1, 0).nestedSequence, 5u);
}

TEST(Sequences, ANestedSequenceShowsItsWholeContent) {
  const ImportResult result = fixtures::Read("nested.otio");
  EXPECT_THAT(draft::Rows(result.document.sequences.at(1), draft::k25),
              ElementsAre("V1 0-60 Inner A", "V1 60-75 Inner B", "A1 0-100 Inner sound"));
}

TEST(Sequences, ANestedItemCarriesItsOwnEffectsLabelAndState) {
  const ClipDraft clip = fixtures::Clip(fixtures::ReadSequence("nested.otio"), 0, 1);
  EXPECT_TRUE(clip.media.isSynthetic);
  EXPECT_EQ(clip.media.address, "");
  EXPECT_TRUE(clip.hasSpeedChange);
  EXPECT_TRUE(clip.isDisabled);
  EXPECT_EQ(clip.sourceClipName, "Titles");
  EXPECT_EQ(clip.labelColor, (ZSL::Color{0x4A, 0x7F, 0xC1, 255}));
  ASSERT_EQ(clip.components.size(), 1u);
  EXPECT_EQ(clip.components[0].displayName, "Glow");
  EXPECT_EQ(clip.frameDuration.GetTicks(), draft::k25);
}

TEST(Sequences, TheLevelsDownTo256AreShownAndMoreRefused) {
  // Timeline's stack and track are two levels, each nested stack with the track around its item two
  // more.
  const ImportResult result = otio::Read(otio::Timeline({otio::Track({Nest(127)})}));
  EXPECT_EQ(result.document.sequences.size(), 128u);
  try {
    otio::Read("\n" + otio::Timeline({otio::Track({Nest(128)})}));
    FAIL();
  } catch (const ImportError& error) {
    EXPECT_EQ(error.GetLine(), 2u);
    EXPECT_STREQ(error.what(), "The timeline is nested deeper than 256 levels; flatten it.");
  }
}

TEST(Sequences, TwentyThousandNestedStacksAreRefusedAtOnce) {
  std::string text = "{\"OTIO_SCHEMA\": \"Timeline.1\", \"tracks\": ";
  for (int i = 0; i < 20000; ++i) text += "{\"OTIO_SCHEMA\": \"Stack.1\", \"children\": [";
  for (int i = 0; i < 20000; ++i) text += "]}";
  text += "}";
  EXPECT_THROW(otio::Read(text), ImportError);
}

TEST(Sequences, ANestedItemWithoutARangeIsAsLongAsItsLongestTrack) {
  const std::string nested = otio::Stack({otio::Track({otio::Clip("A", "10"), otio::Clip("B", "10")}),
                                          otio::Track({otio::Clip("C", "35")}, "Audio")});
  const SequenceDraft sequence = ReadSequence(otio::Timeline({otio::Track({nested})}));
  EXPECT_EQ(sequence.tracks.at(0).items.at(0).end.GetTicks(), 35 * draft::k25);
}

TEST(Sequences, AWindowOnANestedTrackGivesItsLength) {
  const std::string range = R"(, "source_range": )" + otio::Range("5", "7");
  const std::string nested = otio::Stack({otio::Track({otio::Clip("A", "100")}, "Video", range)});
  const SequenceDraft sequence = ReadSequence(otio::Timeline({otio::Track({nested})}));
  EXPECT_EQ(sequence.tracks.at(0).items.at(0).end.GetTicks(), 7 * draft::k25);
}

TEST(Sequences, TracksThatHoldNeitherPictureNorSoundAreNotedAndDoNotCount) {
  const ImportResult result = fixtures::Read("track_kinds.otio");
  EXPECT_THAT(draft::Rows(result.document.sequences.at(0), draft::k25),
              ElementsAre("V1 0-10 Picture", "A1 0-10 Sound", "V2 0-10 More picture"));
  EXPECT_THAT(
      draft::Sentences(result),
      ElementsAre(
          "track \"English\": A track of the kind \"Subtitle\" with 1 item holds neither picture "
          "nor sound; it is not shown.",
          "track \"\": A track of the kind \"Data\" with 1 item holds neither picture nor "
          "sound; it is not shown."));
}

TEST(Sequences, ATrackThatIsNotShownHasNoItemsWhereItsChildrenAreNoList) {
  const std::string children = R"(, "kind": "Data", "children": {"name": "a", "kind": "b"})";
  const ImportResult result = otio::Read(otio::Timeline({otio::Item("Track.1", "Captions", children)}));
  EXPECT_THAT(draft::Sentences(result),
              ElementsAre("track \"Captions\": A track of the kind \"Data\" with 0 items holds neither "
                          "picture nor sound; it is not shown."));
}

TEST(Sequences, ATimelineWithoutTracksIsEmpty) {
  EXPECT_TRUE(ReadSequence(otio::Item("Timeline.1", "Empty", R"(, "tracks": null)")).tracks.empty());
  EXPECT_TRUE(ReadSequence(otio::Item("Timeline.1", "Empty")).tracks.empty());
}

TEST(Sequences, TheStartTimeIsTheZeroPoint) {
  const std::string start = R"(, "global_start_time": )";
  EXPECT_EQ(ReadSequence(otio::Timeline({}, start + otio::Time("90000"))).zeroPoint.GetTicks(),
            3600 * qelmediatypes::TickTime::kTicksPerSecond);
  EXPECT_EQ(ReadSequence(otio::Timeline({}, start + otio::Time("-25"))).zeroPoint.GetTicks(),
            -qelmediatypes::TickTime::kTicksPerSecond);
  EXPECT_EQ(ReadSequence(otio::Timeline({}, start + "null")).zeroPoint.GetTicks(), 0);
}

TEST(Sequences, DropFrameIsInferredFor2997And5994Alone) {
  const auto isDropFrame = [](const std::string& rate, const std::string& extra) {
    return ReadSequence(
               otio::Timeline({}, R"(, "global_start_time": )" + otio::Time("0", rate) + extra))
        .isDropFrame;
  };
  EXPECT_TRUE(isDropFrame("29.97", ""));
  EXPECT_TRUE(isDropFrame("59.94005994005994", ""));
  for (const char* rate : {"30", "60", "23.976", "25", "119.88"})
    EXPECT_FALSE(isDropFrame(rate, "")) << rate;
  EXPECT_FALSE(isDropFrame("29.97", otio::Index(R"("drop_frame": false)")));
  EXPECT_TRUE(isDropFrame("119.88", otio::Index(R"("drop_frame": true)")));
}

TEST(Sequences, TheTimeDisplayIsReadByItsName) {
  const auto read = [](const std::string& display) {
    return otio::Read(otio::Timeline({}, otio::Index("\"time_display\": " + display)));
  };
  const auto format = [&](const std::string& display) {
    const ImportResult result = read(display);
    EXPECT_THAT(draft::Notes(result), ElementsAre()) << display;
    return result.document.sequences.at(0).timeFormat;
  };
  EXPECT_EQ(format("\"timecode\""), TimeFormat::kTimecode);
  EXPECT_EQ(format("\"frames\""), TimeFormat::kFrames);
  EXPECT_EQ(format("\"feet+frames 16mm\""), TimeFormat::kFeetAndFrames16mm);
  EXPECT_EQ(format("\"feet+frames 35mm\""), TimeFormat::kFeetAndFrames35mm);
  EXPECT_EQ(format("\"audio samples\""), TimeFormat::kAudioSamples);
  EXPECT_EQ(format("\"milliseconds\""), TimeFormat::kMilliseconds);
  EXPECT_EQ(format("\"\""), TimeFormat::kTimecode);
  EXPECT_EQ(format("null"), TimeFormat::kTimecode);
}

TEST(Sequences, AnUnknownTimeDisplayIsNotedAndTimecodeUsed) {
  const ImportResult result =
      otio::Read(otio::Timeline({}, otio::Index("\n\n\"time_display\": \"cubits\"")));
  EXPECT_EQ(result.document.sequences.at(0).timeFormat, TimeFormat::kTimecode);
  EXPECT_THAT(draft::Notes(result),
              ElementsAre("3: : The time display \"cubits\" is not known; timecode is used."));
}

TEST(Sequences, AnUnknownTimeDisplayNamesItsSequenceWhereAFileHoldsSeveral) {
  const std::string second =
      otio::Item("Timeline.1", "Reel 2",
                 R"(, "tracks": )" + otio::Stack({}) + otio::Index(R"("time_display": "ells")"));
  const ImportResult result = otio::Read(otio::Item(
      "SerializableCollection.1", "", R"(, "children": )" + otio::List({otio::Timeline({}), second})));
  EXPECT_THAT(draft::Notes(result),
              ElementsAre("2: sequence \"Reel 2\": The time display \"ells\" is not known; timecode is "
                          "used."));
}

TEST(Sequences, OurKeysOfTimelineAndTrackAreRead) {
  const SequenceDraft sequence = fixtures::ReadSequence("everything_of_ours.otio");
  EXPECT_EQ(sequence.videoRate.GetFrameDuration().GetTicks(), draft::k2997);
  EXPECT_EQ(sequence.audioRate.GetFrameDuration().GetTicks(), 2646000);
  EXPECT_FALSE(sequence.isDropFrame);
  EXPECT_EQ(sequence.timeFormat, TimeFormat::kFeetAndFrames35mm);
  EXPECT_TRUE(sequence.tracks.at(0).isMuted);
  EXPECT_TRUE(sequence.tracks.at(0).isLocked);
  EXPECT_FALSE(sequence.tracks.at(0).isDisabled);
}

}  // namespace
}  // namespace standalone
