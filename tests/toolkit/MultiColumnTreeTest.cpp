#include "host/qelui/MultiColumnTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "host/qelcore/Exceptions.h"
#include "standalone/runtime/Runtime.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelcore::Ref;
using qelui::controls::UI_MultiColumnTree;
using qelui::controls::UI_MultiColumnTreeHeaderRow;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr unsigned kPlain = 0;
constexpr bool kIsVisible = true;
constexpr bool kIsDeferred = true;
/// Of a plain header row.
constexpr float kHeaderHeight = 24;

/// A table of ten-pixel rows, eighty pixels of which show below its header row.
class MultiColumnTree : public testing::Test {
 protected:
  MultiColumnTree() {
    tree->SetHeaderRow(Ref(new UI_MultiColumnTreeHeaderRow(tree.Get())));
    tree->UI_SetBounds({0, 0, 300, kHeaderHeight + 80});
  }

  void Append(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) tree->CreateAndAppendRow(nullptr, kIsVisible, kIsDeferred);
  }
  void Fill(std::size_t count) {
    tree->RemoveAllRows(true, true);
    Append(count);
    tree->LayoutAfterAppendRow();
  }
  std::vector<std::size_t> GetVisiblePositions() const {
    std::vector<std::size_t> positions;
    for (const auto* row : tree->GetVisibleRows()) positions.push_back(tree->GetRowIndex(row));
    return positions;
  }
  void ScrollToTop(std::size_t position) {
    tree->ScrollRowIntoView(tree->GetRow(position), true, true, true);
  }
  void ScrollAsFarAsNeeded(std::size_t position) {
    tree->ScrollRowIntoView(tree->GetRow(position), false, true, true);
  }

  standalone::Runtime runtime;
  Ref<UI_MultiColumnTree> tree{new UI_MultiColumnTree(kPlain, 10)};
};

TEST_F(MultiColumnTree, AppendedRowsAreCountedAndFoundByPosition) {
  Append(3);
  EXPECT_EQ(tree->CountRows(), 3u);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(tree->GetRowIndex(tree->GetRow(i)), i);
  EXPECT_EQ(tree->GetRow(3), nullptr);
}

TEST_F(MultiColumnTree, ShowsRowsInTheRoomBelowItsHeaderRow) {
  Fill(20);
  EXPECT_THAT(GetVisiblePositions(), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7));
}

class LowHeaderRow final : public UI_MultiColumnTreeHeaderRow {
 public:
  using UI_MultiColumnTreeHeaderRow::UI_MultiColumnTreeHeaderRow;
  qelui::utility::StyleResource GetStyleResource() const override { return {.height = 4}; }
};

TEST_F(MultiColumnTree, AHeaderRowIsAsHighAsItsStyle) {
  tree->SetHeaderRow(Ref(new LowHeaderRow(tree.Get())));
  Fill(20);
  EXPECT_EQ(GetVisiblePositions().size(), 10U);
}

TEST_F(MultiColumnTree, WithoutHeaderRowAllItsHeightShowsRows) {
  tree->SetHeaderRow({});
  tree->UI_SetBounds({0, 0, 300, 100});
  Fill(20);
  EXPECT_EQ(GetVisiblePositions().size(), 10u);
}

TEST_F(MultiColumnTree, NothingIsLaidOutBeforeItIsAskedFor) {
  Append(5);
  EXPECT_THAT(GetVisiblePositions(), IsEmpty());
  tree->LayoutAfterAppendRow();
  EXPECT_EQ(GetVisiblePositions().size(), 5u);
}

TEST_F(MultiColumnTree, ARowThatDefersNothingIsLaidOutAtOnce) {
  tree->CreateAndAppendRow(nullptr, kIsVisible, !kIsDeferred);
  EXPECT_THAT(GetVisiblePositions(), ElementsAre(0));
}

TEST_F(MultiColumnTree, AnInvisibleRowTakesNoRoom) {
  tree->CreateAndAppendRow(nullptr, !kIsVisible, kIsDeferred);
  tree->CreateAndAppendRow(nullptr, kIsVisible, !kIsDeferred);
  EXPECT_THAT(GetVisiblePositions(), ElementsAre(1));
}

TEST_F(MultiColumnTree, ScrollingWithAllFlagsPutsTheRowAtTheTop) {
  Fill(20);
  ScrollToTop(3);
  EXPECT_EQ(GetVisiblePositions().front(), 3u);
  ScrollToTop(2);
  EXPECT_EQ(GetVisiblePositions().front(), 2u);
}

TEST_F(MultiColumnTree, ScrollingStopsWhereTheLastRowStandsAtTheBottom) {
  Fill(20);
  ScrollToTop(19);
  EXPECT_THAT(GetVisiblePositions(), ElementsAre(12, 13, 14, 15, 16, 17, 18, 19));
}

TEST_F(MultiColumnTree, WhatFitsIsNeverScrolled) {
  Fill(4);
  ScrollToTop(3);
  EXPECT_EQ(GetVisiblePositions().front(), 0u);
}

TEST_F(MultiColumnTree, ScrollingAsFarAsNeededLeavesASeenRowWhereItIs) {
  Fill(20);
  ScrollToTop(5);
  ScrollAsFarAsNeeded(8);
  EXPECT_EQ(GetVisiblePositions().front(), 5u);
  ScrollAsFarAsNeeded(4);
  EXPECT_EQ(GetVisiblePositions().front(), 4u);
  ScrollAsFarAsNeeded(15);
  EXPECT_EQ(GetVisiblePositions().back(), 15u);
}

TEST_F(MultiColumnTree, TheScrollPositionStaysValidWhenRowsBecomeFewer) {
  Fill(100);
  ScrollToTop(90);
  Fill(10);
  EXPECT_EQ(GetVisiblePositions().size(), 8u);
}

TEST_F(MultiColumnTree, TheScrollPositionStaysValidWhenTheControlGrows) {
  Fill(20);
  ScrollToTop(12);
  tree->UI_SetBounds({0, 0, 300, kHeaderHeight + 150});
  EXPECT_EQ(GetVisiblePositions().front(), 5u);
  EXPECT_EQ(GetVisiblePositions().back(), 19u);
}

TEST_F(MultiColumnTree, AControlLowerThanItsHeaderShowsNoRow) {
  Fill(20);
  tree->UI_SetBounds({0, 0, 300, 15});
  EXPECT_THAT(GetVisiblePositions(), IsEmpty());
}

TEST_F(MultiColumnTree, AnotherRowHeightKeepsTheFirstVisibleRowAtTheTop) {
  Fill(100);
  ScrollToTop(40);
  for (const float height : {25.0F, 7.3F, 4.0F, 40.0F, 10.0F}) {
    tree->SetRowHeight(height);
    EXPECT_EQ(tree->GetRowHeight(), height);
    EXPECT_EQ(GetVisiblePositions().front(), 40U) << height;
  }
  EXPECT_EQ(GetVisiblePositions().size(), 8U);
}

TEST_F(MultiColumnTree, LowerRowsNeverLeaveRoomBelowTheLastOne) {
  Fill(20);
  ScrollToTop(12);
  tree->SetRowHeight(5);
  EXPECT_THAT(GetVisiblePositions(), testing::SizeIs(16));
  EXPECT_EQ(GetVisiblePositions().back(), 19U);
}

TEST_F(MultiColumnTree, ARowIsVisibleWhereThatIsSoForPartOfIt) {
  Fill(20);
  tree->UI_SetBounds({0, 0, 300, kHeaderHeight + 45});
  ScrollAsFarAsNeeded(9);  // From the middle of row 5 to the end of row 9.
  for (std::size_t i = 0; i < 20; ++i) {
    EXPECT_EQ(tree->IsRowVisible(tree->GetRow(i)), i >= 5 && i <= 9) << i;
  }
}

TEST_F(MultiColumnTree, ARowIsNotVisibleBeforeItIsLaidOut) {
  Append(1);
  EXPECT_FALSE(tree->IsRowVisible(tree->GetRow(0)));
  tree->LayoutAfterAppendRow();
  EXPECT_TRUE(tree->IsRowVisible(tree->GetRow(0)));
}

TEST_F(MultiColumnTree, ARowThatTakesNoRoomIsNotVisible) {
  auto* const row = tree->CreateAndAppendRow(nullptr, !kIsVisible, !kIsDeferred);
  tree->CreateAndAppendRow(nullptr, kIsVisible, !kIsDeferred);
  EXPECT_FALSE(tree->IsRowVisible(row));
}

TEST_F(MultiColumnTree, NullIsNoRowThatCouldBeVisible) {
  EXPECT_THROW(tree->IsRowVisible(nullptr), qelcore::config::qel_exception);
}

TEST_F(MultiColumnTree, RemovedRowsAreGone) {
  Fill(20);
  const auto* const row = tree->GetRow(5);
  tree->RemoveAllRows(true, true);
  EXPECT_EQ(tree->CountRows(), 0u);
  EXPECT_EQ(tree->GetRow(0), nullptr);
  EXPECT_THAT(GetVisiblePositions(), IsEmpty());
  EXPECT_THROW(tree->GetRowIndex(row), qelcore::config::qel_exception);
}

TEST_F(MultiColumnTree, FractionalRowHeightsAddNoError) {
  tree = Ref(new UI_MultiColumnTree(kPlain, 47.5F));
  tree->UI_SetBounds({0, 0, 300, 95});
  Fill(10'000);
  ScrollToTop(5000);
  EXPECT_THAT(GetVisiblePositions(), ElementsAre(5000, 5001));
}

TEST_F(MultiColumnTree, OperationsStopOffTheMainThread) {
  Fill(1);
  auto* const row = tree->GetRow(0);
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->CountRows(), "UI_MultiColumnTree::CountRows");
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->GetRow(0), "UI_MultiColumnTree::GetRow");
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->GetRowIndex(row), "UI_MultiColumnTree::GetRowIndex");
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->GetVisibleRows(), "UI_MultiColumnTree::GetVisibleRows");
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->IsRowVisible(row), "UI_MultiColumnTree::IsRowVisible");
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->SetRowHeight(20), "UI_MultiColumnTree::SetRowHeight");
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->RemoveAllRows(true, true), "UI_MultiColumnTree::RemoveAllRows");
  EXPECT_STOPS_OFF_MAIN_THREAD(Append(1), "UI_MultiColumnTree::CreateAndAppendRow");
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->LayoutAfterAppendRow(),
                               "UI_MultiColumnTree::LayoutAfterAppendRow");
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->GetHeaderRow(), "UI_MultiColumnTree::GetHeaderRow");
}

}  // namespace
