#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "import/DraftText.h"
#include "standalone/import/TimelineReader.h"

/// Timelines of other programs, kept beside the source tree where their licences allow no copy in it.
/// Without them these tests have nothing to check.
namespace standalone {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::filesystem::path SampleFolder() {
  return std::filesystem::path(SHARED_SAMPLES) / "otio";
}

bool HasSamples() {
  return std::filesystem::exists(SampleFolder());
}

ImportResult Read(const std::string& name) {
  return ReadTimelineFile(SampleFolder() / name);
}

/// Counts of all timelines, with " | " between them.
std::string CountsOf(const std::string& name) {
  const ImportResult result = Read(name);
  std::string text;
  for (std::size_t i = 0; i < result.document.timelineCount; ++i) {
    if (i > 0) text += " | ";
    text += draft::Counts(result.document.sequences.at(i));
  }
  return text;
}

std::vector<std::string> RowsOf(const std::string& name, std::int64_t ticksPerFrame,
                                std::size_t index = 0) {
  return draft::Rows(Read(name).document.sequences.at(index), ticksPerFrame);
}

TEST(SampleTimelines, HaveTheirClipsGapsAndTransitions) {
  if (!HasSamples()) return;
  EXPECT_EQ(CountsOf("Markers.otio"), "V1:2/1/0 A1:2/1/0");
  EXPECT_EQ(CountsOf("MovieAndSeq.otio"), "V1:2/0/0 A1:1/0/0");
  EXPECT_EQ(CountsOf("MultipleEffects.otio"), "V1:2/0/0");
  EXPECT_EQ(CountsOf("MultipleRates.otio"), "V1:1/2/0");
  EXPECT_EQ(CountsOf("TransitionOverlay.otio"), "V1:2/0/1 A1:2/0/1 V2:2/0/1");
  EXPECT_EQ(CountsOf("aaf_metadata.otio"), "V1:1/0/0 A1:1/0/0");
  EXPECT_EQ(CountsOf("big_int.otio"), "V1:1/0/0");
  EXPECT_EQ(CountsOf("enabled.otio"), "V1:2/0/0 V2:1/1/0");
  EXPECT_EQ(CountsOf("generator_reference_test.otio"), "V1:1/0/0");
  EXPECT_EQ(CountsOf("multitrack.otio"), "V1:3/2/0 V2:1/1/0 V3:1/1/0");
  EXPECT_EQ(CountsOf("nested_example.otio"), "V1:4/0/0+3n");
  EXPECT_EQ(CountsOf("own_all_columns_25fps.otio"), "V1:3/1/2+1n V2:1/1/0 A1:2/1/0 A2:1/0/0(off)");
  EXPECT_EQ(CountsOf("SingleClip.otioz"), "V1:1/0/0 A1:1/0/0");
  EXPECT_EQ(CountsOf("own_bundle.otiod"), "V1:2/0/0");
  EXPECT_EQ(CountsOf("own_collection_legacy_unknown.otio"), "V1:2/1/0 | V1:2/1/0");
  EXPECT_EQ(CountsOf("own_dropframe_2997.otio"), "V1:6/0/1 A1:1/1/0");
  EXPECT_EQ(
      CountsOf("resolve_effects.otio"),
      "V1:13/0/1 V2:1/0/0 V3:1/0/0 V4:1/0/0 V5:4/0/0 V6:0/0/0 V7:0/0/0 V8:0/0/0 A1:0/0/0 A2:2/2/0 "
      "A3:2/2/0 A4:0/0/0 A5:6/2/0 A6:2/0/0 A7:1/1/0 A8:1/0/0 A9:1/0/0 A10:1/1/0 A11:1/1/0");
  EXPECT_EQ(CountsOf("screening_example.otio"), "V1:9/0/0");
  EXPECT_EQ(CountsOf("transition_test.otio"), "V1:3/0/3");
}

TEST(SampleTimelines, AllColumnsAt25) {
  if (!HasSamples()) return;
  EXPECT_THAT(
      RowsOf("own_all_columns_25fps.otio", draft::k25),
      ElementsAre("V1 0-100 Interview wide", "V1 100-103 (gap)", "V1 103-178 Interview close",
                  "V1 178-228 Opening titles (nested)", "V1 228-353 Sunset still", "V2 0-90 (gap)",
                  "V2 90-165 Lower third", "A1 0-100 Interview wide", "A1 100-103 (gap)",
                  "A1 103-178 Interview close", "A2 0-3561304320000t Theme"));
  EXPECT_THAT(RowsOf("own_all_columns_25fps.otio", draft::k25, 1),
              ElementsAre("V1 0-60 Sky", "A1 0-75 Wind"));
  const ImportResult result = Read("own_all_columns_25fps.otio");
  EXPECT_EQ(result.document.sequences[0].zeroPoint.GetTicks(), 900000 * draft::k25);
  EXPECT_TRUE(result.document.sequences[0].tracks[3].isMuted);
  EXPECT_THAT(result.notes, IsEmpty());
}

TEST(SampleTimelines, DropFrameAt2997) {
  if (!HasSamples()) return;
  EXPECT_THAT(
      RowsOf("own_dropframe_2997.otio", draft::k2997),
      ElementsAre("V1 0-1798 Shot 010", "V1 1798-1800 Shot 020", "V1 1800-1950 Shot 030 reverse",
                  "V1 1950-2040 Shot 040 fast", "V1 2040-2088 Render", "V1 2088-2148 No range",
                  "A1 0-10 (gap)", "A1 10-13565305353600t Boom"));
  const ImportResult result = Read("own_dropframe_2997.otio");
  EXPECT_TRUE(result.document.sequences[0].isDropFrame);
  EXPECT_EQ(result.document.sequences[0].zeroPoint.GetTicks(), 107892 * draft::k2997);
}

TEST(SampleTimelines, ACollectionWithLegacyAndUnknownObjects) {
  if (!HasSamples()) return;
  EXPECT_THAT(RowsOf("own_collection_legacy_unknown.otio", draft::k24),
              ElementsAre("V1 0-48 One", "V1 48-72 (gap)", "V1 72-96 Two"));
  EXPECT_THAT(RowsOf("own_collection_legacy_unknown.otio", draft::k24, 1),
              ElementsAre("V1 0-10 (gap)", "V1 10-30 Legacy", "V1 30-42 A custom item"));
  EXPECT_THAT(
      draft::Notes(Read("own_collection_legacy_unknown.otio")),
      ElementsAre("131: clip \"Loose clip\": It stands beside the timelines and is not shown.",
                  "278: sequence \"Cut B\", track V1, item \"A custom item\": Unknown kind of object "
                  "\"StudioShot\"; it is shown as a clip without media."));
}

TEST(SampleTimelines, SeveralRatesOnOneTrack) {
  if (!HasSamples()) return;
  EXPECT_THAT(RowsOf("MultipleRates.otio", 1),
              ElementsAre("V1 0-10584000000 (gap)", "V1 10584000000-264600000000 (gap)",
                          "V1 264600000000-2722543488000 videoclip5"));
}

TEST(SampleTimelines, SoundCountedInSamples) {
  if (!HasSamples()) return;
  EXPECT_THAT(RowsOf("Markers.otio", draft::k30),
              ElementsAre("V1 0-30 BART_2021-02-07", "V1 30-60 (gap)", "V1 60-90 BART_2021-02-07",
                          "A1 0-30 BART_2021-02-07", "A1 30-60 (gap)", "A1 60-90 BART_2021-02-07"));
  const ImportResult result = Read("Markers.otio");
  EXPECT_EQ(result.document.sequences[0].videoRate.GetFrameDuration().GetTicks(), draft::k30);
  EXPECT_EQ(result.document.sequences[0].audioRate.GetFrameDuration().GetTicks(), draft::k44100);
}

TEST(SampleTimelines, NestedStacksAndTrack) {
  if (!HasSamples()) return;
  EXPECT_THAT(
      RowsOf("nested_example.otio", draft::k24),
      ElementsAre("V1 0-238 Normal Clip 1", "V1 238-269 Nested Stack 1", "V1 269-302 Normal Clip 2",
                  "V1 302-331 Nested Stack 2 (with effects)", "V1 331-394 Normal Clip 3",
                  "V1 394-398 Nested Track", "V1 398-636 Normal Clip 4"));
  const ImportResult result = Read("nested_example.otio");
  const auto& items = result.document.sequences[0].tracks[0].items;
  EXPECT_FALSE(items[1].clip->hasSpeedChange);
  EXPECT_TRUE(items[3].clip->hasSpeedChange);
  EXPECT_TRUE(items[5].clip->hasSpeedChange);
  EXPECT_THAT(draft::Rows(result.document.sequences.at(1), draft::k24),
              ElementsAre("V1 0-37 Clip Inside A Stack 1"));
  EXPECT_THAT(draft::Rows(result.document.sequences.at(3), draft::k24),
              ElementsAre("V1 0-1 Clip Inside A Track"));
}

TEST(SampleTimelines, TransitionsAtBothEnds) {
  if (!HasSamples()) return;
  EXPECT_THAT(RowsOf("transition_test.otio", draft::k24),
              ElementsAre("V1 0-50 A", "V1 50-100 B", "V1 100-150 C"));
  const ImportResult result = Read("transition_test.otio");
  const auto& items = result.document.sequences[0].tracks[0].items;
  EXPECT_EQ(items[0].clip->headTransition->displayName, "t0");
  EXPECT_EQ(items[0].clip->tailTransition->displayName, "t1");
  EXPECT_EQ(items[1].clip->headTransition->displayName, "t1");
  EXPECT_FALSE(items[1].clip->tailTransition);
  EXPECT_FALSE(items[2].clip->headTransition);
  EXPECT_EQ(items[2].clip->tailTransition->displayName, "t3");
}

TEST(SampleTimelines, NumbersThatNoPlainJSONHas) {
  if (!HasSamples()) return;
  EXPECT_THAT(RowsOf("big_int.otio", draft::k24), ElementsAre("V1 0-24 black"));
}

TEST(SampleTimelines, APaddedExportHasNoRowsForItsTrailingGaps) {
  if (!HasSamples()) return;
  const ImportResult result = Read("resolve_effects.otio");
  const SequenceDraft& sequence = result.document.sequences.at(0);
  EXPECT_EQ(sequence.name, "resolve_effects");
  EXPECT_EQ(sequence.zeroPoint.GetTicks(), 86400 * draft::k24);
  for (const TrackDraft& track : sequence.tracks) {
    EXPECT_TRUE(track.items.empty() || track.items.back().clip);
  }
  const SequenceDraft onlyA5 = [&] {
    SequenceDraft part;
    part.tracks.push_back(sequence.tracks.at(12));
    return part;
  }();
  const std::string slide = " Slide On Concrete Sound Effect (128 kbps).mp3";
  EXPECT_THAT(
      draft::Rows(onlyA5, draft::k24),
      ElementsAre("A1 0-444 (gap)", "A1 444-456" + slide, "A1 456-467" + slide, "A1 467-474" + slide,
                  "A1 474-483" + slide, "A1 483-496" + slide, "A1 496-1076 (gap)",
                  "A1 1076-1123 Snake Hissing sound effect no copyright _ snake sounds _ snake "
                  "noises _ HQ (128 kbps).mp3"));
  EXPECT_THAT(result.notes, IsEmpty());
}

TEST(SampleTimelines, AnExportersBuiltInPanelsAreNoEffects) {
  if (!HasSamples()) return;
  const ImportResult result = Read("resolve_effects.otio");
  std::size_t panels = 0;
  for (const TrackDraft& track : result.document.sequences.at(0).tracks) {
    for (const TrackItemDraft& item : track.items) {
      if (!item.clip) continue;
      for (const ComponentDraft& component : item.clip->components) {
        EXPECT_TRUE(component.isIntrinsic) << component.displayName;
        ++panels;
      }
    }
  }
  EXPECT_EQ(panels, 6u * 7 + 16u * 4 + 64u);
}

TEST(SampleTimelines, ATracksTimecodeRangeHidesNothing) {
  if (!HasSamples()) return;
  const std::vector<std::string> rows = RowsOf("screening_example.otio", draft::k24);
  ASSERT_EQ(rows.size(), 9u);
  EXPECT_EQ(rows.front(), "V1 0-31 ZZ100_501 (LAY3)");
  EXPECT_EQ(rows.back(), "V1 792-1049 ZZ100_510B (LAY1)");
}

TEST(SampleTimelines, MediaOfAFolderBundleIsOnline) {
  if (!HasSamples()) return;
  for (const char* name : {"own_bundle.otiod", "own_bundle.otiod/", "own_bundle.otiod/content.otio"}) {
    const ImportResult result = Read(name);
    const auto& items = result.document.sequences.at(0).tracks.at(0).items;
    EXPECT_FALSE(items.at(0).clip->media.isOffline) << name;
    EXPECT_TRUE(items.at(1).clip->media.isOffline) << name;
  }
}

TEST(SampleTimelines, MediaOfAZipBundleIsOnline) {
  if (!HasSamples()) return;
  const ImportResult result = Read("SingleClip.otioz");
  for (const TrackDraft& track : result.document.sequences.at(0).tracks) {
    const MediaDraft& media = track.items.at(0).clip->media;
    EXPECT_EQ(media.address, "media/BART_2021-02-07.m4v");
    EXPECT_FALSE(media.isOffline);
    EXPECT_EQ(media.lookUpPath, (SampleFolder() / "SingleClip.otioz" / std::string_view(media.address))
                                    .lexically_normal()
                                    .native());
  }
}

}  // namespace
}  // namespace standalone
