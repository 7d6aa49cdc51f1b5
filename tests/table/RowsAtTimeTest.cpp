#include "table/RowsAtTime.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <utility>
#include <vector>

#include "support/Drafts.h"

namespace Vantrel {
namespace {

using drafts::Frame;
using qelmediatypes::TickTime;
using Positions = std::vector<std::size_t>;
using Ranges = std::vector<std::pair<int, int>>;

/// Rows over these frames.
TrackItemDataList MakeRows(const Ranges& ranges) {
  TrackItemDataList rows(ranges.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i].start = Frame(ranges[i].first);
    rows[i].end = Frame(ranges[i].second);
  }
  return rows;
}

Positions FindRowsAtTime(const TrackItemDataList& rows, TickTime time) {
  return LatestEnds(rows).FindRowsAtTime(rows, time);
}

TEST(RowsAtTime, ThereAreNoneInAnEmptyList) {
  EXPECT_EQ(CountRowsStartedBy({}, Frame(0)), 0U);
  EXPECT_TRUE(FindRowsAtTime({}, Frame(0)).empty());
}

TEST(RowsAtTime, ARowHasStartedAtItsStart) {
  const auto rows = MakeRows({{0, 10}, {10, 20}, {10, 30}, {20, 30}});
  EXPECT_EQ(CountRowsStartedBy(rows, Frame(0) - TickTime(1)), 0U);
  EXPECT_EQ(CountRowsStartedBy(rows, Frame(0)), 1U);
  EXPECT_EQ(CountRowsStartedBy(rows, Frame(10) - TickTime(1)), 1U);
  EXPECT_EQ(CountRowsStartedBy(rows, Frame(10)), 3U);
  EXPECT_EQ(CountRowsStartedBy(rows, TickTime::Highest()), 4U);
}

TEST(RowsAtTime, OnACutOnlyTheLaterOfTwoClipsIsThere) {
  const auto rows = MakeRows({{0, 10}, {10, 20}});
  EXPECT_EQ(FindRowsAtTime(rows, Frame(10)), Positions{1});
  EXPECT_EQ(FindRowsAtTime(rows, Frame(10) - TickTime(1)), Positions{0});
  EXPECT_TRUE(FindRowsAtTime(rows, Frame(20)).empty());
}

TEST(RowsAtTime, ALongClipThatStartedFarAboveIsStillThere) {
  const auto rows = MakeRows({{0, 100}, {0, 5}, {5, 10}, {10, 15}, {40, 50}, {60, 70}});
  EXPECT_EQ(FindRowsAtTime(rows, Frame(45)), (Positions{0, 4}));
  EXPECT_EQ(FindRowsAtTime(rows, Frame(55)), Positions{0});
}

TEST(RowsAtTime, ALongClipIsThereHoweverManyRowsStandBetween) {
  Ranges ranges{{0, 9000}, {0, 1}};
  for (int i = 1; i < 3000; ++i) ranges.emplace_back(i, i + 1);
  ranges[1500].second = 5000;
  const auto rows = MakeRows(ranges);
  EXPECT_EQ(FindRowsAtTime(rows, Frame(2500)), (Positions{0, 1500, 2501}));
  EXPECT_EQ(FindRowsAtTime(rows, Frame(4000)), (Positions{0, 1500}));
  EXPECT_EQ(FindRowsAtTime(rows, Frame(6000)), Positions{0});
}

TEST(RowsAtTime, ARowWithoutLengthIsNeverThere) {
  const auto rows = MakeRows({{0, 10}, {5, 5}, {7, 3}});
  EXPECT_EQ(FindRowsAtTime(rows, Frame(5)), Positions{0});
  EXPECT_EQ(FindRowsAtTime(rows, Frame(7)), Positions{0});
}

TEST(RowsAtTime, NegativeTimesAreTimesLikeOthers) {
  const auto rows = MakeRows({{-20, -10}, {-10, 5}});
  EXPECT_EQ(FindRowsAtTime(rows, Frame(-20)), Positions{0});
  EXPECT_EQ(FindRowsAtTime(rows, Frame(-10)), Positions{1});
  EXPECT_TRUE(FindRowsAtTime(rows, Frame(-21)).empty());
}

TEST(RowsAtTime, AgreesWithAWalkOverAllRows) {
  std::mt19937 random(20);
  for (int round = 0; round < 200; ++round) {
    Ranges ranges;
    // Some lists are longer than a block whose latest end is kept.
    for (unsigned i = random() % (round % 10 == 0 ? 1500 : 40); i > 0; --i) {
      const int start = static_cast<int>(random() % 30) - 5;
      ranges.emplace_back(start, start + static_cast<int>(random() % 12));
    }
    std::ranges::sort(ranges);
    const auto rows = MakeRows(ranges);
    for (int frame = -7; frame < 40; ++frame) {
      Positions expected;
      for (std::size_t i = 0; i < ranges.size(); ++i) {
        if (ranges[i].first <= frame && frame < ranges[i].second) expected.push_back(i);
      }
      ASSERT_EQ(FindRowsAtTime(rows, Frame(frame)), expected) << round << " at " << frame;
    }
  }
}

}  // namespace
}  // namespace Vantrel
