#include "data/ShortGaps.h"

#include <gmock/gmock.h>

#include <limits>
#include <random>
#include <string>
#include <vector>

#include "host/qelcore/Exceptions.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"
#include "support/Fakes.h"

namespace Vantrel {
namespace {

using qelmediatypes::TickTime;

/// A list written down row by row; frames last ten ticks.
class ShortGaps : public testing::Test {
 protected:
  static constexpr std::int64_t kFrame = 10;

  TrackItemRowData& Add(std::int64_t start, std::int64_t end, std::uint64_t track = 0) {
    auto& row = list.emplace_back();
    const qelcore::Ref item(new fakes::TrackItem);
    item->type = BE::kTrackItemType_Clip;
    item->track = qelcore::Ref<qelcore::IUnknown>(new fakes::Track(track == kMutedTrack));
    row.trackItem = item;
    row.sequence = sequence;
    row.trackIndex = track;
    row.start = TickTime(start);
    row.end = TickTime(end);
    row.mediaType = BE::kMediaType_Video;
    row.index = list.size() - 1;
    return row;
  }

  /// "e" for a marked end, "s" for a marked start, row by row.
  std::vector<std::string> Mark(std::int32_t threshold) {
    MarkShortGaps(list, threshold);
    std::vector<std::string> marks;
    for (const auto& row : list) {
      marks.push_back(std::string(row.startFlagged ? "s" : "") + (row.endFlagged ? "e" : ""));
    }
    return marks;
  }

  std::string MissingInterface() {
    try {
      MarkShortGaps(list, 5);
    } catch (const qelcore::config::null_pointer_exception& failure) {
      return failure.GetObject();
    }
    return "none";
  }

  static constexpr std::uint64_t kMutedTrack = 99;
  qelcore::Ref<BE::ISequence> sequence{new fakes::Sequence(TickTime(kFrame))};
  TrackItemDataList list;
};

using testing::ElementsAre;

TEST_F(ShortGaps, AGapOfExactlyTheThresholdIsMarked) {
  Add(0, 100);
  Add(150, 200);
  EXPECT_THAT(Mark(5), ElementsAre("e", "s"));
}

TEST_F(ShortGaps, AGapOfOneFrameMoreIsNotMarked) {
  Add(0, 100);
  Add(160, 200);
  EXPECT_THAT(Mark(5), ElementsAre("", ""));
}

TEST_F(ShortGaps, OnlyWholeFramesCount) {
  Add(0, 100);
  Add(159, 200);
  EXPECT_THAT(Mark(5), ElementsAre("e", "s"));
}

TEST_F(ShortGaps, RowsThatTouchOrOverlapAreNeverMarked) {
  Add(0, 100);
  Add(100, 200);
  Add(150, 300);
  EXPECT_THAT(Mark(2147483647), ElementsAre("", "", ""));
}

TEST_F(ShortGaps, AGapBelowOneFrameCountsAsNoFrames) {
  Add(0, 100);
  Add(101, 200);
  EXPECT_THAT(Mark(0), ElementsAre("e", "s"));
}

TEST_F(ShortGaps, ANegativeThresholdMarksNothing) {
  Add(0, 100);
  Add(101, 200);
  EXPECT_THAT(Mark(-1), ElementsAre("", ""));
}

TEST_F(ShortGaps, AGapOfHoursIsNotNarrowedToAShortOne) {
  Add(0, 100);
  Add(100 + (std::int64_t{1} << 32) * kFrame, std::int64_t{1} << 60);
  EXPECT_THAT(Mark(5), ElementsAre("", ""));
}

TEST_F(ShortGaps, ARowBetweenTwoShortGapsGetsBothMarks) {
  Add(0, 100);
  Add(110, 200);
  Add(210, 300);
  EXPECT_THAT(Mark(1), ElementsAre("e", "se", "s"));
}

TEST_F(ShortGaps, SoundIsLeftOutAndNeverMarked) {
  Add(0, 100);
  Add(105, 110).mediaType = BE::kMediaType_Audio;
  Add(120, 200);
  EXPECT_THAT(Mark(5), ElementsAre("e", "", "s"));
}

TEST_F(ShortGaps, RowsOnDisabledOrMutedTracksAreLeftOut) {
  Add(0, 100);
  Add(110, 120, kMutedTrack);
  Add(130, 200);
  EXPECT_THAT(Mark(5), ElementsAre("e", "", "s"));
}

TEST_F(ShortGaps, PairsAreTakenAcrossTracks) {
  Add(0, 100, 0);
  Add(120, 200, 1);
  EXPECT_THAT(Mark(5), ElementsAre("e", "s"));
}

/// The last row ends long before the row ahead of it; the neighbour decides, not the latest end.
TEST_F(ShortGaps, OnlyTheNeighbourInTheListCounts) {
  Add(0, 1000, 0);
  Add(10, 20, 1);
  Add(30, 40, 1);
  EXPECT_THAT(Mark(1), ElementsAre("", "e", "s"));
}

TEST_F(ShortGaps, FramesAreThoseOfTheFirstRowsSequenceNotOfTheRows) {
  Add(0, 100).frameRate = TickTime(1000);
  Add(150, 200).sequence = qelcore::Ref<BE::ISequence>(new fakes::Sequence(TickTime(1)));
  EXPECT_THAT(Mark(5), ElementsAre("e", "s"));
}

TEST_F(ShortGaps, EachPairCountsInFramesOfItsFirstRowsSequence) {
  const qelcore::Ref<BE::ISequence> fine(new fakes::Sequence(TickTime(1)));
  Add(0, 100);
  Add(150, 200).sequence = fine;
  Add(206, 300).sequence = fine;
  Add(305, 400);
  Add(450, 500);
  EXPECT_THAT(Mark(5), ElementsAre("e", "s", "e", "se", "s"));
}

TEST_F(ShortGaps, AnUnknownFrameDurationCountsEveryGapAsNoFrames) {
  sequence = qelcore::Ref<BE::ISequence>(new fakes::Sequence(qelmediatypes::kUnknownFrameDuration));
  Add(0, 100);
  Add(1000000, 2000000);
  EXPECT_THAT(Mark(0), ElementsAre("e", "s"));
}

TEST_F(ShortGaps, GapsFromOneEndOfTimeToTheOtherAreLong) {
  Add(std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::min() + 1);
  Add(std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::max());
  EXPECT_THAT(Mark(2147483647), ElementsAre("", ""));
}

TEST_F(ShortGaps, AnEmptyListAndASingleRowHaveNoGaps) {
  EXPECT_THAT(Mark(5), ElementsAre());
  Add(0, 100);
  EXPECT_THAT(Mark(5), ElementsAre(""));
}

TEST_F(ShortGaps, APictureRowWithoutTrackRaisesItsTypeName) {
  const qelcore::Ref item(new fakes::TrackItem);
  item->track = qelcore::Ref<qelcore::IUnknown>(new fakes::Nothing);
  Add(0, 100).trackItem = item;
  EXPECT_EQ(MissingInterface(), "BE::ITrack");
}

TEST_F(ShortGaps, APictureRowWithoutTrackItemRaisesItsTypeName) {
  Add(0, 100).trackItem.Reset();
  EXPECT_EQ(MissingInterface(), "BE::ITrackItem");
}

TEST_F(ShortGaps, ARowWithoutSequenceRaisesItsTypeNameWhereAGapFollows) {
  Add(0, 100);
  Add(110, 200).sequence.Reset();
  Add(210, 300);
  EXPECT_EQ(MissingInterface(), "BE::ISequence");
}

TEST_F(ShortGaps, MarkingAgreesWithAPlainListOfPairs) {
  std::mt19937 random(20240711);
  for (int round = 0; round < 50; ++round) {
    list.clear();
    std::int64_t start = 0;
    for (int i = 0; i < 40; ++i) {
      start += static_cast<std::int64_t>(random() % 60);
      Add(start, start + static_cast<std::int64_t>(random() % 60), random() % 4 == 0 ? kMutedTrack : 0);
      if (random() % 4 == 0) list.back().mediaType = BE::kMediaType_Audio;
    }
    TrackItemDataList pairs;
    for (const auto& row : list) {
      if (row.mediaType == BE::kMediaType_Video && row.trackIndex != kMutedTrack) pairs.push_back(row);
    }
    const auto threshold = static_cast<std::int32_t>(random() % 4);
    std::vector<std::string> wanted(list.size());
    for (std::size_t i = 1; i < pairs.size(); ++i) {
      const auto gap = pairs[i].start.GetTicks() - pairs[i - 1].end.GetTicks();
      if (gap <= 0 || gap / kFrame > threshold) continue;
      wanted[pairs[i - 1].index] += "e";
      wanted[pairs[i].index] = "s" + wanted[pairs[i].index];
    }
    EXPECT_EQ(Mark(threshold), wanted) << "round " << round;
  }
}

// ---- In the model

/// One track: A up to frame 50, then five frames of nothing, then B.
TrackItemDataList CutWithShortGap(rows::Host& host, bool isDisabled = false) {
  auto draft = drafts::MakeSequence();
  auto& track = drafts::AddTrack(draft);
  track.isDisabled = isDisabled;
  drafts::AddClip(track, "A", 0, 50);
  drafts::AddGap(track, 50, 55);
  drafts::AddClip(track, "B", 55, 80);
  return rows::Collect(host.Add(draft));
}

TEST(ShortGapsInTheModel, ClipsAroundAShortGapAreMarkedWhenGapRowsAreLeftOut) {
  rows::Host host;
  auto list = CutWithShortGap(host);
  list.erase(list.begin() + 1);
  rows::Number(list);
  MarkShortGaps(list, 5);
  EXPECT_TRUE(list[0].endFlagged);
  EXPECT_FALSE(list[0].startFlagged);
  EXPECT_TRUE(list[1].startFlagged);
  EXPECT_FALSE(list[1].endFlagged);
}

TEST(ShortGapsInTheModel, AGapRowTouchesBothClipsSoNothingIsMarked) {
  rows::Host host;
  auto list = CutWithShortGap(host);
  rows::Number(list);
  MarkShortGaps(list, 5);
  for (const auto& row : list) EXPECT_FALSE(row.startFlagged || row.endFlagged);
}

TEST(ShortGapsInTheModel, ADisabledTrackIsLeftOut) {
  rows::Host host;
  auto list = CutWithShortGap(host, true);
  list.erase(list.begin() + 1);
  rows::Number(list);
  MarkShortGaps(list, 5);
  for (const auto& row : list) EXPECT_FALSE(row.startFlagged || row.endFlagged);
}

}  // namespace
}  // namespace Vantrel
