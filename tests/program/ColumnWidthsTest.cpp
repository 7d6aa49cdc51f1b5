#include "standalone/app/ColumnWidths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

namespace standalone {
namespace {

using testing::ElementsAre;

constexpr bool kNarrowedLast = true;

std::vector<std::size_t> FitTexts(const std::vector<std::size_t>& naturals, std::size_t room) {
  std::vector<WantedWidth> columns;
  for (const std::size_t natural : naturals) columns.push_back({natural, false});
  return FitColumnWidths(columns, room);
}

TEST(ColumnWidths, WithoutARoomEveryColumnIsAsWideAsItLikes) {
  EXPECT_THAT(FitColumnWidths({{500, false}, {2, kNarrowedLast}}, std::nullopt), ElementsAre(500, 2));
}

TEST(ColumnWidths, ColumnsThatFitExactlyKeepTheirWidths) {
  EXPECT_THAT(FitTexts({10, 20, 6}, 40), ElementsAre(10, 20, 6));
}

TEST(ColumnWidths, TheWidestIsNarrowedFirst) {
  EXPECT_THAT(FitTexts({10, 20, 6}, 36), ElementsAre(10, 16, 6));
}

TEST(ColumnWidths, WideColumnsAreNarrowedToOneWidthAndShareWhatIsLeft) {
  EXPECT_THAT(FitTexts({30, 5, 20}, 28), ElementsAre(10, 5, 9));
}

TEST(ColumnWidths, NumbersAndTimesGiveWayLast) {
  EXPECT_THAT(FitColumnWidths({{11, kNarrowedLast}, {30, false}}, 21), ElementsAre(11, 8));
  EXPECT_THAT(FitColumnWidths({{11, kNarrowedLast}, {30, false}}, 18), ElementsAre(8, 8));
}

TEST(ColumnWidths, NoneIsNarrowerThanEightUnlessItLikes) {
  EXPECT_THAT(FitTexts({30, 2, 30}, 22), ElementsAre(8, 2, 8));
}

TEST(ColumnWidths, ColumnsAtTheRightGoWhenNothingElseHelps) {
  EXPECT_THAT(FitTexts({30, 2, 30}, 21), ElementsAre(17, 2));
  EXPECT_THAT(FitTexts({30, 2, 30}, 11), ElementsAre(11));
}

TEST(ColumnWidths, TheFirstColumnStaysHoweverSmallTheRoom) {
  EXPECT_THAT(FitTexts({30, 30}, 1), ElementsAre(1));
}

TEST(ColumnWidths, NoColumnsNeedNoRoom) {
  EXPECT_THAT(FitTexts({}, 1), ElementsAre());
}

/// What columns take on the screen, side by side.
std::size_t GetEnd(const std::vector<std::size_t>& widths) {
  return std::accumulate(widths.begin(), widths.end(), (widths.size() - 1) * kColumnGap);
}

TEST(ColumnWidths, WhateverTheColumnsTheyFitAndWasteNothing) {
  std::mt19937 random(3);
  for (int round = 0; round < 5000; ++round) {
    std::vector<WantedWidth> columns(1 + random() % 26);
    for (WantedWidth& column : columns) column = {random() % 40, random() % 3 == 0};
    const std::size_t room = 1 + random() % 300;
    const auto widths = FitColumnWidths(columns, room);
    ASSERT_FALSE(widths.empty());
    ASSERT_LE(GetEnd(widths), room);
    bool isAnyNarrowed = false;
    for (std::size_t i = 0; i < widths.size(); ++i) {
      ASSERT_LE(widths[i], columns[i].natural);
      const std::size_t least = widths.size() == 1 ? 1 : kNarrowestCut;
      ASSERT_GE(widths[i], std::min(columns[i].natural, least));
      isAnyNarrowed = isAnyNarrowed || widths[i] < columns[i].natural;
    }
    if (isAnyNarrowed) {
      ASSERT_EQ(GetEnd(widths), room);
    }
  }
}

}  // namespace
}  // namespace standalone
