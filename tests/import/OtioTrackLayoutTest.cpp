#include "standalone/import/OtioTrackLayout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "import/DraftText.h"
#include "import/Fixtures.h"
#include "import/OtioText.h"

namespace standalone {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> RowsOf(const std::string& timeline) {
  return draft::Rows(otio::Read(timeline).document.sequences.at(0), draft::k25);
}

std::string NameOf(const Boxed<TransitionDraft>& transition) {
  return transition ? transition->displayName : "";
}

TEST(TrackLayout, ItemsFollowEachOther) {
  const std::string track = otio::Track({otio::Clip("A", "10"), otio::Gap("3"), otio::Clip("B", "20")});
  EXPECT_THAT(RowsOf(otio::Timeline({track})),
              ElementsAre("V1 0-10 A", "V1 10-13 (gap)", "V1 13-33 B"));
}

TEST(TrackLayout, AClipsOwnStartNeverShiftsIt) {
  const std::string clip =
      otio::Item("Clip.2", "A", R"(, "source_range": )" + otio::Range("900", "10"));
  EXPECT_THAT(RowsOf(otio::Timeline({otio::Track({clip})})), ElementsAre("V1 0-10 A"));
}

TEST(TrackLayout, WithoutARangeTheMediaGivesTheDuration) {
  const std::string media = otio::File("a.mov", R"(, "available_range": )" + otio::Range("5", "60"));
  const std::string clip = otio::Item("Clip.2", "A", otio::Media(media));
  EXPECT_THAT(RowsOf(otio::Timeline({otio::Track({clip})})), ElementsAre("V1 0-60 A"));
}

TEST(TrackLayout, RatesMixExactly) {
  const SequenceDraft sequence = fixtures::ReadSequence("mixed_rates.otio");
  EXPECT_THAT(draft::Rows(sequence, 1),
              ElementsAre("V1 0-10584000000 (gap)", "V1 10584000000-264600000000 (gap)",
                          "V1 264600000000-2722543488000 Pulled", "V1 2722543488000-2976813504000 Full",
                          "V1 2976813504000-3231083520000 Drop", "A1 0-254016000000 Sound",
                          "A1 254016000000-381024000000 (gap)", "A1 381024000000-444528000000 Half"));
}

TEST(TrackLayout, ThousandsOfPulledSamplesDoNotDrift) {
  std::vector<std::string> clips;
  const std::string extra = R"(, "source_range": )" + otio::Range("0", "1", "47952");
  for (int i = 0; i < 4000; ++i) clips.push_back(otio::Item("Clip.2", "", extra));
  const auto result = otio::Read(otio::Timeline({otio::Track(clips, "Audio")}));
  const auto& items = result.document.sequences.at(0).tracks.at(0).items;
  // 254016000000 / 47952 = 5297297 + 11/37.
  for (std::size_t i = 0; i < items.size(); ++i) {
    const auto n = static_cast<std::int64_t>(i + 1);
    ASSERT_EQ(items[i].end.GetTicks(), n * 5297297 + (n * 11 * 2 + 37) / 74) << i;
  }
}

TEST(TrackLayout, GapsAtTheEndAreLeftOutAndOthersKept) {
  EXPECT_THAT(draft::Rows(fixtures::ReadSequence("bare_gap.otio"), draft::k25),
              ElementsAre("V1 0-10 (gap)", "V1 10-20 A", "V1 20-20 (gap)", "V1 20-30 B",
                          "V1 30-30 (gap)", "V1 30-30 C", "V1 30-40 D"));
  EXPECT_THAT(RowsOf(otio::Timeline({otio::Track({otio::Gap("1000")})})), IsEmpty());
}

TEST(TrackLayout, AGapNeedsNoOtherMembersButARange) {
  EXPECT_THAT(draft::Notes(fixtures::Read("bare_gap.otio")),
              ElementsAre("30: track V1, gap \"\": It has no range; it is shown with duration 0."));
}

TEST(TrackLayout, ATransitionBelongsToTheClipsThatItTouches) {
  const SequenceDraft sequence = fixtures::ReadSequence("transitions_at_edges.otio");
  std::vector<std::string> heads;
  std::vector<std::string> tails;
  for (const TrackItemDraft& item : sequence.tracks.at(0).items) {
    heads.push_back(item.clip ? NameOf(item.clip->headTransition) : "-");
    tails.push_back(item.clip ? NameOf(item.clip->tailTransition) : "-");
  }
  EXPECT_THAT(heads, ElementsAre("Head", "A to B", "-", "Gap to C", "Kept"));
  EXPECT_THAT(tails, ElementsAre("A to B", "B to gap", "-", "Kept", "Tail"));
}

TEST(TrackLayout, TransitionsTakeNoTime) {
  EXPECT_THAT(
      draft::Rows(fixtures::ReadSequence("transitions_at_edges.otio"), draft::k25),
      ElementsAre("V1 0-50 A", "V1 50-100 B", "V1 100-125 (gap)", "V1 125-175 C", "V1 175-225 D"));
}

TEST(TrackLayout, OfTwoTransitionsInARowTheFirstIsKept) {
  EXPECT_THAT(
      draft::Notes(fixtures::Read("transitions_at_edges.otio")),
      ElementsAre("84: track V1, transition \"Dropped\": Two transitions follow each other; only "
                  "the first is kept."));
}

TEST(TrackLayout, ATransitionBetweenGapsIsNobodys) {
  const auto result = otio::Read(
      otio::Timeline({otio::Track({otio::Clip("A", "5"), otio::Gap("5"), otio::Transition("T"),
                                   otio::Gap("5"), otio::Clip("B", "5")})}));
  for (const TrackItemDraft& item : result.document.sequences.at(0).tracks.at(0).items) {
    if (!item.clip) continue;
    EXPECT_FALSE(item.clip->headTransition);
    EXPECT_FALSE(item.clip->tailTransition);
  }
}

TEST(TrackLayout, TimesThatCantBeReadLeaveThePositionAndOneNoteEach) {
  const ImportResult result = fixtures::Read("bad_times.otio");
  EXPECT_THAT(draft::Rows(result.document.sequences.at(0), draft::k25),
              ElementsAre("V1 0-10 A", "V1 10-10 Negative", "V1 10-20 B", "V1 20-20 No rate",
                          "V1 20-20 No range", "V1 20-20 No duration", "V1 20-20 Text",
                          "V1 20-20 No number", "V1 20-30 C"));
  EXPECT_THAT(
      draft::Notes(result),
      ElementsAre(
          "22: track V1, clip \"Negative\": Its duration is negative; it is shown with duration 0.",
          "40: track V1, clip \"No rate\": Its duration has no usable rate; it is shown with duration "
          "0.",
          "49: track V1, clip \"No range\": It has no range; it is shown with duration 0.",
          "50: track V1, clip \"No duration\": Its duration is missing; it is shown with duration 0.",
          "55: track V1, clip \"Text\": Its duration is not a number; it is shown with duration 0.",
          "63: track V1, clip \"No number\": Its duration is missing; it is shown with duration 0."));
}

TEST(TrackLayout, NaNAndInfiniteTimesAreNotedAndTheRestIsKept) {
  const ImportResult result = fixtures::Read("numbers_beyond_json.otio");
  EXPECT_THAT(draft::Rows(result.document.sequences.at(0), draft::k25),
              ElementsAre("V1 0-10 Before", "V1 10-10 Duration is NaN", "V1 10-10 Rate is infinite",
                          "V1 10-30 Start is NaN", "V1 30-60 After"));
  EXPECT_THAT(
      draft::Sentences(result),
      ElementsAre("track V1, clip \"Duration is NaN\": Its duration is not a number; it is shown "
                  "with duration 0.",
                  "track V1, clip \"Rate is infinite\": Its duration has no usable rate; it is "
                  "shown with duration 0.",
                  "track V1, clip \"Start is NaN\": The start of its range is not a number; its "
                  "duration is used.",
                  ": The start time is not a number; the sequence starts at zero."));
}

TEST(TrackLayout, OfATrackThatEndsBeforeItsStackBeginsNothingIsShown) {
  const std::string range = R"(, "source_range": )";
  const std::string track =
      otio::Track({otio::Clip("A", "100")}, "Video", range + otio::Range("0", "10"));
  const std::string stack = otio::Stack({track}, "", range + otio::Range("50", "20"));
  EXPECT_THAT(RowsOf(otio::Item("Timeline.1", "Cut", R"(, "tracks": )" + stack)), IsEmpty());
}

TEST(TrackLayout, ATrackIsCutBelow100Hours) {
  const ImportResult result = fixtures::Read("beyond_100_hours.otio");
  EXPECT_THAT(draft::Rows(result.document.sequences.at(0), draft::k25),
              ElementsAre("V1 0-8999990 First", "V1 8999990-91445759999999999t Over",
                          "V3 0-91445759999999999t Huge"));
  EXPECT_THAT(draft::Sentences(result),
              ElementsAre("track V1: The track is longer than 100 hours; it is cut there.",
                          "track V2: The track is longer than 100 hours; it is cut there.",
                          "track V3: The track is longer than 100 hours; it is cut there."));
}

TEST(TrackLayout, RangesOfTrackAndStackAreWindows) {
  EXPECT_THAT(draft::Rows(fixtures::ReadSequence("windows.otio"), draft::k25),
              ElementsAre("V1 0-5 Cut at head", "V1 5-15 Inside", "V1 15-30 Cut at tail", "V2 0-5 A",
                          "V2 5-30 B"));
}

TEST(TrackLayout, AWindowThatBeginsBeforeTheContentMovesItBack) {
  const std::string range = R"(, "source_range": )" + otio::Range("-10", "100");
  EXPECT_THAT(RowsOf(otio::Timeline({otio::Track({otio::Clip("A", "20")}, "Video", range)})),
              ElementsAre("V1 10-30 A"));
}

TEST(TrackLayout, AWindowThatShowsNothingIsIgnoredAndNoted) {
  const ImportResult result = fixtures::Read("windows_beside_items.otio");
  EXPECT_THAT(draft::Rows(result.document.sequences.at(0), draft::k25),
              ElementsAre("V1 0-31 A", "V1 31-81 B"));
  EXPECT_THAT(
      draft::Notes(result),
      ElementsAre("8: track V1: The track's range shows none of its items; the whole track is shown."));
}

TEST(TrackLayout, ATransitionIsNotMovedToAnItemBehindAHiddenOne) {
  const std::string range = R"(, "source_range": )" + otio::Range("10", "20");
  const auto result = otio::Read(otio::Timeline(
      {otio::Track({otio::Transition("T"), otio::Clip("Hidden", "10"), otio::Clip("Shown", "20")},
                   "Video", range)}));
  EXPECT_FALSE(fixtures::Clip(result.document.sequences.at(0), 0, 0).headTransition);
}

TEST(TrackLayout, UnknownObjectsTakeTheirTimeAndAreNoted) {
  const ImportResult result = fixtures::Read("unknown_objects.otio");
  EXPECT_THAT(draft::Rows(result.document.sequences.at(0), draft::k25),
              ElementsAre("V1 0-10 A", "V1 10-22 Shot", "V1 22-22 Timeless", "V1 22-27 No schema",
                          "V1 27-37 B"));
  EXPECT_THAT(
      draft::Notes(result),
      ElementsAre(
          "22: track V1, item \"Shot\": Unknown kind of object \"StudioShot\"; it is shown as a clip "
          "without media.",
          "32: track V1, item \"Timeless\": Unknown kind of object \"StudioNote\"; it is shown as a "
          "clip "
          "without media and duration.",
          "33: track V1, item \"No schema\": An object without \"OTIO_SCHEMA\"; it is shown as a "
          "clip without media.",
          "41: track V1: Something that is no item stands on the track; it is left out.",
          "42: track V1: Something that is no item stands on the track; it is left out.",
          "52: track V1, clip \"B\": Unknown kind of media reference \"StudioReference\"; only its "
          "address "
          "is used.",
          "59: track V1, clip \"B\": Unknown kind of effect \"StudioEffect\"; only its name is used."));
  const ClipDraft shot = fixtures::Clip(result.document.sequences.at(0), 0, 1);
  EXPECT_EQ(shot.media.address, "");
  EXPECT_FALSE(shot.media.isOffline);
  EXPECT_FALSE(shot.media.isSynthetic);
}

TEST(TrackLayout, DisabledItemsAndTracksAreMarkedAndTheRestIsEnabled) {
  const SequenceDraft sequence = fixtures::ReadSequence("enabled_absent.otio");
  EXPECT_FALSE(fixtures::Clip(sequence, 0, 0).isDisabled);
  EXPECT_TRUE(fixtures::Clip(sequence, 0, 1).isDisabled);
  EXPECT_FALSE(fixtures::Clip(sequence, 0, 2).isDisabled);
  EXPECT_FALSE(sequence.tracks.at(0).isDisabled);
  EXPECT_TRUE(sequence.tracks.at(1).isDisabled);
  EXPECT_FALSE(fixtures::Clip(sequence, 1, 0).isDisabled);
}

}  // namespace
}  // namespace standalone
