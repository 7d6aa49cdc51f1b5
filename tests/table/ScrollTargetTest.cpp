#include "table/ScrollTarget.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <optional>

#include "support/Drafts.h"

namespace Vantrel {
namespace {

using drafts::Frame;

/// Clips of ten frames, one after the other.
TrackItemDataList MakeRows(std::size_t count) {
  TrackItemDataList rows(count);
  for (std::size_t i = 0; i < count; ++i) {
    rows[i].start = Frame(static_cast<std::int64_t>(i) * 10);
    rows[i].end = rows[i].start + Frame(10);
  }
  return rows;
}

/// The time at which `count` of those have started.
qelmediatypes::TickTime WhenStarted(std::size_t count) {
  return Frame(static_cast<std::int64_t>(count) * 10 - 5);
}

TEST(ScrollTarget, ThereIsNoneWithoutRows) {
  EXPECT_EQ(FindScrollTarget({}, Frame(0), 0, 10), std::nullopt);
}

TEST(ScrollTarget, WithElevenRowsVisibleIsSevenAboveTheNextRow) {
  const auto rows = MakeRows(100);
  EXPECT_EQ(FindScrollTarget(rows, WhenStarted(50), 20, 30), 43U);
  EXPECT_EQ(FindScrollTarget(rows, WhenStarted(50), 0, 10), 43U) << "wherever the viewport stands";
}

TEST(ScrollTarget, SevenTenthsOfTheSpanAreCutTowardZero) {
  const auto rows = MakeRows(100);
  constexpr std::size_t kStepsBack[] = {0, 0, 1, 2, 2, 3, 4, 4, 5, 6, 7, 7};
  for (std::size_t span = 0; span < std::size(kStepsBack); ++span) {
    EXPECT_EQ(FindScrollTarget(rows, WhenStarted(50), 8, 8 + span), 50 - kStepsBack[span])
        << span + 1 << " rows visible";
  }
}

TEST(ScrollTarget, BehindTheLastRowAViewportOfUpToThreeRowsEndsAtTheLastOne) {
  const auto rows = MakeRows(50);
  for (std::size_t visible = 1; visible <= 3; ++visible) {
    EXPECT_EQ(FindScrollTarget(rows, WhenStarted(1000), 0, visible - 1), 49U) << visible;
  }
}

TEST(ScrollTarget, BehindTheLastRowAViewportOfTenRowsEndsSixRowsAboveTheEnd) {
  EXPECT_EQ(FindScrollTarget(MakeRows(50), WhenStarted(1000), 0, 9), 44U);
}

TEST(ScrollTarget, BeforeTheFirstRowIsTheFirst) {
  const auto rows = MakeRows(50);
  for (const std::size_t span : {0U, 1U, 9U, 49U}) {
    EXPECT_EQ(FindScrollTarget(rows, Frame(-5), 0, span), 0U);
  }
}

TEST(ScrollTarget, NeverWrapsAboveTheFirstRow) {
  const auto rows = MakeRows(50);
  for (std::size_t started = 0; started <= 7; ++started) {
    EXPECT_EQ(FindScrollTarget(rows, WhenStarted(started), 0, 10), 0U) << started;
  }
  EXPECT_EQ(FindScrollTarget(rows, WhenStarted(8), 0, 10), 1U);
}

TEST(ScrollTarget, ASingleRowIsItsOwnTarget) {
  const auto rows = MakeRows(1);
  EXPECT_EQ(FindScrollTarget(rows, Frame(-1), 0, 0), 0U);
  EXPECT_EQ(FindScrollTarget(rows, Frame(0), 0, 0), 0U);
  EXPECT_EQ(FindScrollTarget(rows, Frame(99), 0, 0), 0U);
}

TEST(ScrollTarget, CountsRowsThatStartAtTheTimeItself) {
  const auto rows = MakeRows(50);
  EXPECT_EQ(FindScrollTarget(rows, Frame(100), 0, 0), 11U);
  EXPECT_EQ(FindScrollTarget(rows, Frame(100) - qelmediatypes::TickTime(1), 0, 0), 10U);
}

TEST(ScrollTarget, AViewportOfManyMillionRowsDoesNotOverflow) {
  constexpr std::size_t kVisible = std::size_t{1} << 60;
  EXPECT_EQ(FindScrollTarget(MakeRows(3), Frame(25), 0, kVisible), 0U);
}

}  // namespace
}  // namespace Vantrel
