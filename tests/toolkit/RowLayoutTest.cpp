#include "standalone/toolkit/RowLayout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <random>
#include <vector>

namespace {

using standalone::RowLayout;
using testing::ElementsAre;
using testing::IsEmpty;

RowLayout MakeLayout(float rowHeight, std::size_t rowCount) {
  RowLayout layout(rowHeight);
  for (std::size_t i = 0; i < rowCount; ++i) layout.Append(false);
  layout.Update();
  return layout;
}

TEST(RowLayout, FractionalHeightsAreRoundedAtEachTopAndNeverAddUp) {
  const RowLayout layout = MakeLayout(47.5F, 10'000);
  EXPECT_EQ(layout.GetTop(1), 48);
  EXPECT_EQ(layout.GetTop(2), 95);
  EXPECT_EQ(layout.GetTop(3), 143);
  EXPECT_EQ(layout.GetHeight(), 475'000);
}

TEST(RowLayout, AMillionTallRowsAreBeyond32Bits) {
  const RowLayout layout = MakeLayout(4000, 1'000'000);
  EXPECT_EQ(layout.GetHeight(), 4'000'000'000);
  EXPECT_THAT(layout.GetPositionsBetween(3'999'996'000, 4'000'000'000), ElementsAre(999'999));
}

TEST(RowLayout, RowsAreNotLaidOutBeforeTheUpdate) {
  RowLayout layout = MakeLayout(10, 2);
  layout.Append(false);
  EXPECT_EQ(layout.GetHeight(), 20);
  EXPECT_THAT(layout.GetPositionsBetween(0, 100), ElementsAre(0, 1));
  layout.Update();
  EXPECT_EQ(layout.GetHeight(), 30);
}

TEST(RowLayout, ShowsRowsThatLieOnlyPartlyWithin) {
  const RowLayout layout = MakeLayout(10, 5);
  EXPECT_THAT(layout.GetPositionsBetween(9, 21), ElementsAre(0, 1, 2));
  EXPECT_THAT(layout.GetPositionsBetween(10, 20), ElementsAre(1));
  EXPECT_THAT(layout.GetPositionsBetween(20, 20), IsEmpty());
  EXPECT_THAT(layout.GetPositionsBetween(50, 60), IsEmpty());
}

TEST(RowLayout, HeightsBelowAPixelCountAsAPixel) {
  for (const float height : {0.0F, -5.0F, 0.25F, std::numeric_limits<float>::quiet_NaN()}) {
    EXPECT_EQ(MakeLayout(height, 7).GetHeight(), 7);
  }
}

TEST(RowLayout, ClearedItHasNoRows) {
  RowLayout layout = MakeLayout(10, 5);
  layout.Clear();
  EXPECT_EQ(layout.GetHeight(), 0);
  EXPECT_THAT(layout.GetPositionsBetween(0, 100), IsEmpty());
}

TEST(RowLayout, ANewRowHeightMovesTopsAndNoPositions) {
  RowLayout layout = MakeLayout(10, 5);
  layout.SetRowHeight(47.5F);
  EXPECT_EQ(layout.GetRowHeight(), 47.5F);
  EXPECT_EQ(layout.GetTop(1), 48);
  EXPECT_EQ(layout.GetHeight(), 238);
  layout.SetRowHeight(0);
  EXPECT_EQ(layout.GetRowHeight(), 1);
  EXPECT_EQ(layout.GetHeight(), 5);
}

TEST(RowLayout, ARowIsFoundFromItsTopToJustAboveTheNextOne) {
  const RowLayout layout = MakeLayout(47.5F, 3);
  EXPECT_EQ(layout.FindPositionAt(0), 0U);
  EXPECT_EQ(layout.FindPositionAt(47), 0U);
  EXPECT_EQ(layout.FindPositionAt(48), 1U);
  EXPECT_EQ(layout.FindPositionAt(94), 1U);
  EXPECT_EQ(layout.FindPositionAt(95), 2U);
  EXPECT_EQ(layout.FindPositionAt(142), 2U);
}

TEST(RowLayout, ThereIsNoRowAboveTheFirstAndBelowTheLast) {
  const RowLayout layout = MakeLayout(10, 3);
  EXPECT_EQ(layout.FindPositionAt(-1), std::nullopt);
  EXPECT_EQ(layout.FindPositionAt(30), std::nullopt);
  EXPECT_EQ(MakeLayout(10, 0).FindPositionAt(0), std::nullopt);
}

TEST(RowLayout, AHiddenRowIsNeverFound) {
  RowLayout layout(10);
  for (const bool isHidden : {true, false, true, true, false}) layout.Append(isHidden);
  layout.Update();
  EXPECT_EQ(layout.FindPositionAt(9), 1U);
  EXPECT_EQ(layout.FindPositionAt(10), 4U);
}

/// The rows that show in [top, bottom), found by placing one row after the other.
std::vector<std::size_t> FindNaively(const std::vector<bool>& hidden, double height, std::int64_t top,
                                     std::int64_t bottom) {
  std::vector<std::size_t> found;
  double shown = 0;
  for (std::size_t i = 0; i < hidden.size(); ++i) {
    if (hidden[i]) continue;
    const auto rowTop = static_cast<std::int64_t>(shown * height + 0.5);
    const auto rowBottom = static_cast<std::int64_t>((shown + 1) * height + 0.5);
    if (rowTop < bottom && rowBottom > top) found.push_back(i);
    ++shown;
  }
  return found;
}

TEST(RowLayout, AgreesWithPlacingRowsOneByOne) {
  std::mt19937 random(20);
  for (int round = 0; round < 300; ++round) {
    const float height = 1 + static_cast<float>(random() % 400) / 8;
    RowLayout layout(height);
    std::vector<bool> hidden;
    for (std::size_t i = random() % 60; i > 0; --i) hidden.push_back(random() % 4 == 0);
    for (const bool isHidden : hidden) layout.Append(isHidden);
    layout.Update();
    const std::int64_t top = random() % 1500;
    const std::int64_t bottom = top + random() % 300;
    ASSERT_EQ(layout.GetPositionsBetween(top, bottom), FindNaively(hidden, height, top, bottom))
        << "round " << round;
    const auto at = FindNaively(hidden, height, top, top + 1);
    ASSERT_EQ(layout.FindPositionAt(top), at.empty() ? std::nullopt : std::optional(at.front()))
        << "round " << round;
  }
}

}  // namespace
