#include "table/RowOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "data/TrackItemRowData.h"
#include "host/BE/MediaTypes.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"

namespace Vantrel {
namespace {

using qelmediatypes::TickTime;

TrackItemRowData MakeRow(std::int64_t start, const BE::MediaType& mediaType, std::uint64_t track,
                         std::string_view name = {}) {
  TrackItemRowData row;
  row.start = TickTime(start);
  row.mediaType = mediaType;
  row.trackIndex = track;
  row.name = qelcore::UTF8String(name);
  return row;
}

std::vector<std::string> GetNames(const TrackItemDataList& rows) {
  std::vector<std::string> names;
  for (const auto& row : rows) names.emplace_back(row.name.View());
  return names;
}

using Names = std::vector<std::string>;

TEST(RowOrder, TheEarlierStartComesFirst) {
  TrackItemDataList rows{MakeRow(30, BE::kMediaType_Video, 0, "late"),
                         MakeRow(10, BE::kMediaType_Video, 5, "early"),
                         MakeRow(20, BE::kMediaType_Audio, 0, "middle")};
  OrderAndNumberRows(rows);
  EXPECT_EQ(GetNames(rows), (Names{"early", "middle", "late"}));
}

TEST(RowOrder, ANegativeStartComesBeforeZero) {
  TrackItemDataList rows{
      MakeRow(0, BE::kMediaType_Video, 0, "zero"), MakeRow(-1, BE::kMediaType_Audio, 9, "before zero"),
      MakeRow(std::numeric_limits<std::int64_t>::max(), BE::kMediaType_Video, 0, "last"),
      MakeRow(std::numeric_limits<std::int64_t>::min(), BE::kMediaType_Audio, 0, "first")};
  OrderAndNumberRows(rows);
  EXPECT_EQ(GetNames(rows), (Names{"first", "before zero", "zero", "last"}));
}

TEST(RowOrder, PictureComesBeforeSoundOfTheSameStart) {
  TrackItemDataList rows{MakeRow(5, BE::kMediaType_Audio, 0, "sound"),
                         MakeRow(5, BE::kMediaType_Video, 7, "picture")};
  OrderAndNumberRows(rows);
  EXPECT_EQ(GetNames(rows), (Names{"picture", "sound"}));
}

TEST(RowOrder, MediaTypesCompareByUnsignedBytesInStoredOrder) {
  BE::MediaType low;
  BE::MediaType lastByteHigh;
  BE::MediaType firstByteHigh;
  lastByteHigh.bytes[15] = 0xFF;
  firstByteHigh.bytes[0] = 0x80;
  TrackItemDataList rows{MakeRow(0, firstByteHigh, 0, "80 in the first byte"),
                         MakeRow(0, lastByteHigh, 0, "FF in the last byte"),
                         MakeRow(0, low, 9, "all zero")};
  OrderAndNumberRows(rows);
  EXPECT_EQ(GetNames(rows), (Names{"all zero", "FF in the last byte", "80 in the first byte"}));
}

TEST(RowOrder, AtOneStartTheLowerTrackComesFirst) {
  TrackItemDataList rows{
      MakeRow(0, BE::kMediaType_Video, std::numeric_limits<std::uint64_t>::max(), "top"),
      MakeRow(0, BE::kMediaType_Video, 1, "second"), MakeRow(0, BE::kMediaType_Video, 0, "first")};
  OrderAndNumberRows(rows);
  EXPECT_EQ(GetNames(rows), (Names{"first", "second", "top"}));
}

TEST(RowOrder, TwoPicturesAndASoundOfOneStartAreNumberedFromTheLowestTrack) {
  TrackItemDataList rows{MakeRow(100, BE::kMediaType_Audio, 0, "A1"),
                         MakeRow(100, BE::kMediaType_Video, 2, "V3"),
                         MakeRow(100, BE::kMediaType_Video, 0, "V1")};
  OrderAndNumberRows(rows);
  EXPECT_EQ(GetNames(rows), (Names{"V1", "V3", "A1"}));
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(rows[i].index, i);
}

TEST(RowOrder, AnEmptyListStaysEmpty) {
  TrackItemDataList rows;
  OrderAndNumberRows(rows);
  EXPECT_TRUE(rows.empty());
}

TEST(RowOrder, ASingleRowIsNumberedZero) {
  TrackItemDataList rows{MakeRow(4, BE::kMediaType_Video, 0)};
  rows.front().index = 77;
  OrderAndNumberRows(rows);
  EXPECT_EQ(rows.front().index, 0U);
}

TEST(RowOrder, RowsOfEqualKeysAllStayInTheList) {
  TrackItemDataList rows{MakeRow(1, BE::kMediaType_Video, 0, "a"),
                         MakeRow(1, BE::kMediaType_Video, 0, "b"),
                         MakeRow(1, BE::kMediaType_Video, 0, "c")};
  OrderAndNumberRows(rows);
  auto names = GetNames(rows);
  std::ranges::sort(names);
  EXPECT_EQ(names, (Names{"a", "b", "c"}));
}

TEST(RowOrder, NothingOfARowButItsNumberChanges) {
  TrackItemRowData row = MakeRow(50, BE::kMediaType_Video, 3, "name");
  row.end = TickTime(60);
  row.frameRate = TickTime(2);
  row.codec = qelcore::UTF8String("codec");
  row.labelColor = {0.1F, 0.2F, 0.3F, 0.4F};
  row.startFlagged = row.endFlagged = true;
  row.effects = qelcore::UTF8String("effects");
  TrackItemDataList rows{row, MakeRow(1, BE::kMediaType_Audio, 0, "other")};
  OrderAndNumberRows(rows);
  const TrackItemRowData& moved = rows[1];
  EXPECT_EQ(moved.index, 1U);
  EXPECT_EQ(std::tie(moved.name, moved.start, moved.end, moved.frameRate, moved.trackIndex, moved.codec,
                     moved.labelColor, moved.startFlagged, moved.endFlagged, moved.effects),
            std::tie(row.name, row.start, row.end, row.frameRate, row.trackIndex, row.codec,
                     row.labelColor, row.startFlagged, row.endFlagged, row.effects));
}

/// Two tracks of a clip, a gap and a clip, in the order they are visited.
class RowsWithGaps : public testing::Test {
 protected:
  RowsWithGaps() {
    auto draft = drafts::MakeSequence();
    for (const std::string track : {"1", "2"}) {
      auto& items = drafts::AddTrack(draft);
      drafts::AddClip(items, "A" + track, 0, 50);
      drafts::AddGap(items, 50, 55);
      drafts::AddClip(items, "B" + track, 55, 80);
    }
    list = rows::Collect(host.Add(draft));
  }

  std::vector<std::uint64_t> GetNumbers() const {
    std::vector<std::uint64_t> numbers;
    for (const auto& row : list) numbers.push_back(row.index);
    return numbers;
  }

  rows::Host host;
  TrackItemDataList list;
};

TEST_F(RowsWithGaps, KeepTheirGaps) {
  OrderAndNumberRows(list, true);
  EXPECT_EQ(GetNames(list), (Names{"A1", "A2", "Gap", "Gap", "B1", "B2"}));
  EXPECT_EQ(GetNumbers(), (std::vector<std::uint64_t>{0, 1, 2, 3, 4, 5}));
}

TEST_F(RowsWithGaps, AreNumberedWithoutTheGapsThatLeave) {
  OrderAndNumberRows(list, false);
  EXPECT_EQ(GetNames(list), (Names{"A1", "A2", "B1", "B2"}));
  EXPECT_EQ(GetNumbers(), (std::vector<std::uint64_t>{0, 1, 2, 3}));
}

TEST_F(RowsWithGaps, LoseThemWhenTheyAreInOrderAlready) {
  list.resize(3);
  OrderAndNumberRows(list, false);
  EXPECT_EQ(GetNames(list), (Names{"A1", "B1"}));
  EXPECT_EQ(GetNumbers(), (std::vector<std::uint64_t>{0, 1}));
}

TEST_F(RowsWithGaps, AreEmptyWhenAllLeave) {
  list.erase(list.begin() + 2, list.end());
  list.erase(list.begin());
  OrderAndNumberRows(list, false);
  EXPECT_TRUE(list.empty());
}

TEST(RowOrder, ARowWithoutTrackItemIsNoGap) {
  TrackItemDataList rows{MakeRow(1, BE::kMediaType_Video, 0, "item gone")};
  OrderAndNumberRows(rows, false);
  EXPECT_EQ(GetNames(rows), (Names{"item gone"}));
}

// The simple model: selection by exhaustive search for the next row.
TEST(RowOrder, RandomListsAgreeWithASimpleModel) {
  std::mt19937 random(20240229);
  for (int round = 0; round < 200; ++round) {
    TrackItemDataList rows;
    const unsigned count = random() % 60;
    for (unsigned i = 0; i < count; ++i) {
      rows.push_back(MakeRow(static_cast<std::int64_t>(random() % 9) - 4,
                             random() % 2 == 0 ? BE::kMediaType_Video : BE::kMediaType_Audio,
                             random() % 3));
    }
    using Key = std::tuple<std::int64_t, bool, std::uint64_t>;
    const auto keyOf = [](const TrackItemRowData& row) {
      return Key(row.start.GetTicks(), row.mediaType == BE::kMediaType_Audio, row.trackIndex);
    };
    std::vector<Key> left;
    for (const auto& row : rows) left.push_back(keyOf(row));
    OrderAndNumberRows(rows);
    ASSERT_EQ(rows.size(), left.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const auto next = std::ranges::min_element(left);
      ASSERT_EQ(keyOf(rows[i]), *next) << "round " << round;
      ASSERT_EQ(rows[i].index, i);
      left.erase(next);
    }
  }
}

/// The comparisons that sorting keys of these starts takes.
std::uint64_t CountComparisons(const std::vector<std::int64_t>& starts) {
  RowOrderKeys keys;
  for (const std::int64_t start : starts) {
    keys.push_back({TickTime(start), BE::kMediaType_Video, 0, keys.size()});
  }
  std::uint64_t comparisons = 0;
  SortRowOrderKeys(keys, [&](const RowOrderKey& left, const RowOrderKey& right) {
    ++comparisons;
    return RowOrderLess()(left, right);
  });
  EXPECT_TRUE(std::is_sorted(keys.begin(), keys.end(), RowOrderLess()));
  return comparisons;
}

constexpr std::int64_t kCount = 1 << 16;

std::vector<std::int64_t> MakeStarts(const std::function<std::int64_t(std::int64_t)>& startOf) {
  std::vector<std::int64_t> starts;
  for (std::int64_t i = 0; i < kCount; ++i) starts.push_back(startOf(i));
  return starts;
}

/// One to find the ascending runs, and one more each time that their number is halved.
double GetMostComparisons(double runs) {
  return static_cast<double>(kCount) * (1 + std::log2(runs));
}

const double kMostComparisons = GetMostComparisons(kCount);

TEST(RowOrder, WhatIsSortedIsOnlyLookedThrough) {
  EXPECT_LT(CountComparisons(MakeStarts([](auto i) { return i; })), GetMostComparisons(1));
}

TEST(RowOrder, CostGrowsWithTheTracksNotWithTheirLength) {
  for (const std::int64_t tracks : {2, 7, 8, 100}) {
    const std::int64_t clips = kCount / tracks;
    EXPECT_LT(CountComparisons(MakeStarts([clips](auto i) { return i % clips; })),
              GetMostComparisons(std::bit_ceil(static_cast<std::uint64_t>(tracks) + 1)));
  }
}

TEST(RowOrder, CostStaysLinearithmicWhenShuffled) {
  std::mt19937_64 random(7);
  EXPECT_LT(
      CountComparisons(MakeStarts([&](auto) { return static_cast<std::int64_t>(random() >> 1U); })),
      kMostComparisons);
}

TEST(RowOrder, CostStaysLinearithmicWhenReversed) {
  EXPECT_LT(CountComparisons(MakeStarts([](auto i) { return -i; })), kMostComparisons);
}

TEST(RowOrder, CostStaysLinearithmicWhenAllEqual) {
  EXPECT_LT(CountComparisons(MakeStarts([](auto) { return 0; })), kMostComparisons);
}

TEST(RowOrder, CostStaysLinearithmicForAnOrganPipe) {
  EXPECT_LT(CountComparisons(MakeStarts([](auto i) { return std::min(i, kCount - i); })),
            kMostComparisons);
}

// Gives out values only as the sort compares, always the worst for the pivot it has just chosen.
class Adversary {
 public:
  explicit Adversary(std::size_t count) : values(count, kUndecided) {}

  bool IsLess(std::size_t left, std::size_t right) {
    ++comparisons;
    if (values[left] == kUndecided && values[right] == kUndecided) {
      Decide(left == candidate ? left : right);
    }
    if (values[left] == kUndecided) {
      candidate = left;
    } else if (values[right] == kUndecided) {
      candidate = right;
    }
    return values[left] < values[right];
  }
  std::uint64_t CountComparisons() const { return comparisons; }

 private:
  static constexpr std::int64_t kUndecided = std::numeric_limits<std::int64_t>::max();
  void Decide(std::size_t i) { values[i] = next++; }

  std::vector<std::int64_t> values;
  std::int64_t next = 0;
  std::size_t candidate = 0;
  std::uint64_t comparisons = 0;
};

TEST(RowOrder, CostStaysLinearithmicAgainstAnAdversary) {
  RowOrderKeys keys(kCount);
  for (std::size_t i = 0; i < keys.size(); ++i) keys[i].position = i;
  Adversary adversary(keys.size());
  SortRowOrderKeys(keys, [&](const RowOrderKey& left, const RowOrderKey& right) {
    return adversary.IsLess(left.position, right.position);
  });
  EXPECT_LT(adversary.CountComparisons(), kMostComparisons);
}

}  // namespace
}  // namespace Vantrel
