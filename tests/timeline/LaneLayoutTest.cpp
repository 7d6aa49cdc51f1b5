#include "standalone/timeline/LaneLayout.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace standalone {
namespace {

std::vector<TimelineLane> MakeLanes(std::size_t videoCount, std::size_t audioCount) {
  std::vector<TimelineLane> lanes(videoCount + audioCount);
  for (std::size_t i = 0; i < videoCount; ++i) lanes[i].isVideo = true;
  return lanes;
}

TEST(LaneLayout, TracksStandBelowEachOtherWithADivideBeforeTheFirstAudioTrack) {
  const LaneLayout layout(MakeLanes(2, 2));
  ASSERT_EQ(layout.Count(), 4U);
  EXPECT_EQ(layout.GetTop(0), 0);
  EXPECT_EQ(layout.GetTop(1), LaneLayout::kVideoHeight);
  const int firstAudio = 2 * LaneLayout::kVideoHeight + LaneLayout::kDivide;
  EXPECT_EQ(layout.GetTop(2), firstAudio);
  EXPECT_EQ(layout.GetTop(3), firstAudio + LaneLayout::kAudioHeight);
  EXPECT_EQ(layout.GetHeight(1), LaneLayout::kVideoHeight);
  EXPECT_EQ(layout.GetHeight(2), LaneLayout::kAudioHeight);
  EXPECT_EQ(layout.GetHeight(), firstAudio + 2 * LaneLayout::kAudioHeight);
}

TEST(LaneLayout, TracksOfOneKindHaveNoDivide) {
  EXPECT_EQ(LaneLayout(MakeLanes(3, 0)).GetHeight(), 3 * LaneLayout::kVideoHeight);
  EXPECT_EQ(LaneLayout(MakeLanes(0, 3)).GetHeight(), 3 * LaneLayout::kAudioHeight);
}

TEST(LaneLayout, EachPixelOfALaneLeadsToItAndNoOtherDoes) {
  const LaneLayout layout(MakeLanes(2, 1));
  for (std::size_t lane = 0; lane < layout.Count(); ++lane) {
    const int top = layout.GetTop(lane);
    EXPECT_EQ(layout.FindLaneAt(top), std::optional(lane));
    EXPECT_EQ(layout.FindLaneAt(top + layout.GetHeight(lane) - 1), std::optional(lane));
  }
  for (int y = 2 * LaneLayout::kVideoHeight; y < layout.GetTop(2); ++y) {
    EXPECT_EQ(layout.FindLaneAt(y), std::nullopt) << y;
  }
  EXPECT_EQ(layout.FindLaneAt(-1), std::nullopt);
  EXPECT_EQ(layout.FindLaneAt(layout.GetHeight()), std::nullopt);
}

TEST(LaneLayout, WithoutTracksThereIsNothing) {
  for (const LaneLayout& layout : {LaneLayout(), LaneLayout(MakeLanes(0, 0))}) {
    EXPECT_EQ(layout.Count(), 0U);
    EXPECT_EQ(layout.GetHeight(), 0);
    EXPECT_EQ(layout.FindLaneAt(0), std::nullopt);
  }
}

}  // namespace
}  // namespace standalone
