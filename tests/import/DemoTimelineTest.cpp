#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <vector>

#include "import/DraftText.h"
#include "standalone/import/TimelineReader.h"

namespace standalone {
namespace {

using testing::IsEmpty;

const ImportResult& Demo() {
  static const ImportResult result =
      ReadTimelineFile(std::filesystem::path(SOURCE_FOLDER) / "samples" / "demo.otio");
  return result;
}

std::vector<ClipDraft> Clips() {
  std::vector<ClipDraft> clips;
  for (const TrackDraft& track : Demo().document.sequences.at(0).tracks) {
    for (const TrackItemDraft& item : track.items) {
      if (item.clip) clips.push_back(*item.clip);
    }
  }
  return clips;
}

std::ptrdiff_t Count(const std::function<bool(const ClipDraft&)>& condition) {
  const std::vector<ClipDraft> clips = Clips();
  return std::count_if(clips.begin(), clips.end(), condition);
}

bool HasComponent(const ClipDraft& clip, const std::function<bool(const ComponentDraft&)>& condition) {
  return std::any_of(clip.components.begin(), clip.components.end(), condition);
}

TEST(DemoTimeline, IsReadWithoutANote) {
  EXPECT_THAT(draft::Notes(Demo()), IsEmpty());
  const SequenceDraft& sequence = Demo().document.sequences.at(0);
  EXPECT_EQ(sequence.zeroPoint.GetTicks(), 90000 * draft::k25);
  EXPECT_EQ(sequence.videoRate.GetFrameDuration().GetTicks(), draft::k25);
  EXPECT_EQ(draft::Counts(sequence), "V1:12/2/4+1n V2:5/5/0 A1:5/3/0 A2:2/2/0");
}

TEST(DemoTimeline, HasExactlyOneOfflineClip) {
  EXPECT_EQ(Count([](const ClipDraft& clip) { return clip.media.isOffline; }), 1);
  for (const SequenceDraft& sequence : Demo().document.sequences) {
    for (const TrackDraft& track : sequence.tracks) {
      for (const TrackItemDraft& item : track.items) {
        EXPECT_FALSE(item.clip && item.clip->proxy && item.clip->proxy->isOffline);
      }
    }
  }
}

TEST(DemoTimeline, HasAGapOfThreeFrames) {
  const std::vector<std::string> rows = draft::Rows(Demo().document.sequences.at(0), draft::k25);
  EXPECT_THAT(rows, testing::Contains("V1 272-275 (gap)"));
}

TEST(DemoTimeline, FillsEveryColumnAtLeastOnce) {
  EXPECT_GT(Count([](const ClipDraft& c) { return !c.media.codec.empty() && !c.media.isOffline; }), 0);
  EXPECT_GT(Count([](const ClipDraft& c) { return !c.comment.empty(); }), 0);
  EXPECT_GT(Count([](const ClipDraft& c) { return !c.description.empty(); }), 0);
  EXPECT_GT(Count([](const ClipDraft& c) { return !c.tapeName.empty(); }), 0);
  EXPECT_GT(Count([](const ClipDraft& c) { return !c.videoInfo.empty(); }), 0);
  EXPECT_GT(Count([](const ClipDraft& c) { return !c.sourceClipName.empty(); }), 0);
  EXPECT_GT(Count([](const ClipDraft& c) { return !c.labelName.empty(); }), 0);
  EXPECT_GT(Count([](const ClipDraft& c) { return c.proxy.has_value(); }), 0);
  EXPECT_GT(Count([](const ClipDraft& c) { return c.multicam.isMulticam; }), 0);
  EXPECT_GT(Count([](const ClipDraft& c) { return c.tailTransition && c.tailTransition->isMissing; }),
            0);
  const auto hasEffect = [](const ClipDraft& c) {
    return HasComponent(c, [](const ComponentDraft& e) { return !e.isIntrinsic && !e.isMissing; });
  };
  const auto hasMissingEffect = [](const ClipDraft& c) {
    return HasComponent(c, [](const ComponentDraft& e) { return e.isMissing; });
  };
  const auto hasFont = [](const ClipDraft& c) {
    return c.isGraphic && HasComponent(c, [](const ComponentDraft& e) { return !e.fonts.empty(); });
  };
  EXPECT_GT(Count(hasEffect), 0);
  EXPECT_EQ(Count(hasMissingEffect), 1);
  EXPECT_GT(Count(hasFont), 0);
}

TEST(DemoTimeline, ShowsEachKindOfItem) {
  EXPECT_EQ(Count([](const ClipDraft& c) { return c.nestedSequence.has_value(); }), 1);
  EXPECT_EQ(Count([](const ClipDraft& c) { return c.isDisabled; }), 1);
  EXPECT_EQ(Count([](const ClipDraft& c) { return c.isAdjustment; }), 1);
  EXPECT_EQ(Count([](const ClipDraft& c) { return c.hasSpeedChange; }), 1);
  EXPECT_EQ(Count([](const ClipDraft& c) { return c.media.isStill; }), 1);
  const auto& tracks = Demo().document.sequences.at(0).tracks;
  EXPECT_EQ(std::count_if(tracks.begin(), tracks.end(), [](const TrackDraft& t) { return t.isMuted; }),
            1);
}

}  // namespace
}  // namespace standalone
