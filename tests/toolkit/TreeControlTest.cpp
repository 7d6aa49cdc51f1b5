#include "standalone/toolkit/TreeControl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

#include "host/qelui/Events.h"
#include "toolkit/OffMainThread.h"
#include "toolkit/TreeFixture.h"

namespace {

using qelcore::Ref;
using qelui::controls::UI_MultiColumnTreeHeaderRow;
using qelui::ui::kModifierControl;
using qelui::ui::kModifierShift;
using standalone::RowMove;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kPlain = 0;
constexpr std::optional<std::size_t> kBelow;

/// Twenty rows, eight of which show.
class TreeControl : public TreeFixture {
 protected:
  TreeControl() { Fill(20); }
};

TEST_F(TreeControl, WithoutAWindowTheViewportIsWhatTheHeaderRowLeaves) {
  EXPECT_EQ(GetControl().GetViewportHeight(), 80);
  tree->SetHeaderRow(Ref(new UI_MultiColumnTreeHeaderRow(tree.Get())));
  EXPECT_EQ(GetControl().GetViewportHeight(), 56);
  tree->UI_SetBounds({0, 0, 300, 10});
  EXPECT_EQ(GetControl().GetViewportHeight(), 0);
}

TEST_F(TreeControl, AWindowSaysHowHighItsViewportIs) {
  GetControl().SetViewportHeight(50);
  EXPECT_EQ(GetControl().GetViewportHeight(), 50);
  EXPECT_THAT(GetControl().GetVisiblePositions(), ElementsAre(0, 1, 2, 3, 4));
  GetControl().SetViewportHeight(-10);
  EXPECT_EQ(GetControl().GetViewportHeight(), 0);
  EXPECT_THAT(GetControl().GetVisiblePositions(), IsEmpty());
  GetControl().SetViewportHeight(std::nullopt);
  EXPECT_EQ(GetControl().GetViewportHeight(), 80);
}

TEST_F(TreeControl, ScrollsBetweenTheFirstRowAndTheLast) {
  EXPECT_EQ(GetControl().GetContentHeight(), 200);
  GetControl().ScrollTo(35);
  EXPECT_EQ(GetControl().GetScrollPosition(), 35);
  GetControl().ScrollTo(1000);
  EXPECT_EQ(GetControl().GetScrollPosition(), 120);
  GetControl().ScrollTo(-5);
  EXPECT_EQ(GetControl().GetScrollPosition(), 0);
}

TEST_F(TreeControl, FindsTheRowAtAHeightOfItsContent) {
  EXPECT_EQ(GetControl().FindPositionAt(35), 3U);
  EXPECT_EQ(GetControl().GetTop(3), 30);
  EXPECT_EQ(GetControl().FindPositionAt(200), std::nullopt);
}

TEST_F(TreeControl, KnowsHowTheTableWasSetUp) {
  EXPECT_TRUE(GetControl().SupportsMultipleSelections());
  EXPECT_FALSE(GetControl().WantsKeyboardFocus());
  tree->SetWantsKeyboardFocus(true);
  tree->SetSupportMultipleSelections(false);
  EXPECT_TRUE(GetControl().WantsKeyboardFocus());
  EXPECT_FALSE(GetControl().SupportsMultipleSelections());
}

TEST_F(TreeControl, AGestureThatSelectsOthersTellsOnceWhichAreSelected) {
  GetControl().Click(2, kPlain);
  GetControl().Click(4, kModifierShift);
  EXPECT_THAT(selections, ElementsAre(ElementsAre(2), ElementsAre(2, 3, 4)));
  EXPECT_EQ(GetControl().CountSelected(), 3U);
  EXPECT_TRUE(GetControl().IsSelected(3));
  EXPECT_FALSE(GetControl().IsSelected(5));
}

TEST_F(TreeControl, AGestureThatChangesNothingTellsNobody) {
  GetControl().Click(2, kPlain);
  selections.clear();
  GetControl().Click(2, kPlain);
  GetControl().ContextClick(2);
  GetControl().MoveCurrent(RowMove::kDown, kModifierControl);
  GetControl().Click(kBelow, kModifierControl);
  EXPECT_THAT(selections, IsEmpty());
}

TEST_F(TreeControl, EachGestureReachesTheSelection) {
  GetControl().Click(2, kPlain);
  GetControl().DragTo(3, kPlain);
  GetControl().ContextClick(5);
  GetControl().MoveCurrent(RowMove::kDown, kPlain);
  GetControl().MoveCurrent(RowMove::kUp, kModifierControl);
  GetControl().SelectCurrent(kModifierControl);
  GetControl().Click(kBelow, kPlain);
  EXPECT_THAT(selections, ElementsAre(ElementsAre(2), ElementsAre(2, 3), ElementsAre(5), ElementsAre(6),
                                      ElementsAre(5, 6), IsEmpty()));
}

TEST_F(TreeControl, AllRowsAreSelectedAtOnce) {
  GetControl().SelectAll();
  ASSERT_EQ(selections.size(), 1U);
  EXPECT_EQ(selections[0].size(), 20U);
  GetControl().SelectAll();
  EXPECT_EQ(selections.size(), 1U);
}

TEST_F(TreeControl, ATableOfSingleSelectionIsNeverSelectedAsAWhole) {
  tree->SetSupportMultipleSelections(false);
  GetControl().Click(2, kPlain);
  GetControl().Click(4, kModifierShift);
  GetControl().SelectAll();
  EXPECT_THAT(GetSelected(), ElementsAre(4));
}

TEST_F(TreeControl, APageIsWhatTheViewportShows) {
  GetControl().Click(0, kPlain);
  GetControl().MoveCurrent(RowMove::kPageDown, kPlain);
  EXPECT_EQ(GetControl().GetCurrent(), 8U);
  GetControl().SetViewportHeight(5);
  GetControl().MoveCurrent(RowMove::kPageDown, kPlain);
  EXPECT_EQ(GetControl().GetCurrent(), 9U);
}

TEST_F(TreeControl, KeysScrollTheCurrentRowIntoViewAsFarAsNeeded) {
  GetControl().Click(7, kPlain);
  EXPECT_EQ(GetControl().GetScrollPosition(), 0);
  GetControl().MoveCurrent(RowMove::kDown, kPlain);
  EXPECT_EQ(GetControl().GetScrollPosition(), 10);
  GetControl().MoveCurrent(RowMove::kDown, kModifierControl);
  EXPECT_EQ(GetControl().GetScrollPosition(), 20);
  GetControl().MoveCurrent(RowMove::kFirst, kModifierShift);
  EXPECT_EQ(GetControl().GetScrollPosition(), 0);
}

TEST_F(TreeControl, AKeyShowsACurrentRowThatWasScrolledAway) {
  GetControl().Click(0, kPlain);
  GetControl().ScrollTo(100);
  GetControl().MoveCurrent(RowMove::kUp, kPlain);
  EXPECT_EQ(GetControl().GetScrollPosition(), 0);
}

TEST_F(TreeControl, AClickOnARowThatShowsInPartShowsAllOfIt) {
  GetControl().ScrollTo(5);
  GetControl().Click(8, kPlain);
  EXPECT_EQ(GetControl().GetScrollPosition(), 10);
  GetControl().DragTo(0, kPlain);
  EXPECT_EQ(GetControl().GetScrollPosition(), 0);
}

TEST_F(TreeControl, SelectingAllAndAClickBelowTheLastRowScrollNothing) {
  GetControl().Click(0, kPlain);
  GetControl().ScrollTo(100);
  GetControl().SelectAll();
  GetControl().Click(kBelow, kPlain);
  EXPECT_EQ(GetControl().GetScrollPosition(), 100);
}

TEST_F(TreeControl, ScrollingTellsWhichRowsCameIntoViewOrLeftIt) {
  GetControl().ScrollTo(20);
  EXPECT_THAT(shownOrHidden, ElementsAre(0, 1, 8, 9));
  shownOrHidden.clear();
  GetControl().ScrollTo(25);
  EXPECT_THAT(shownOrHidden, ElementsAre(10));
  shownOrHidden.clear();
  GetControl().ScrollTo(25);
  EXPECT_THAT(shownOrHidden, IsEmpty());
}

TEST_F(TreeControl, AViewportOfAnotherHeightTellsWhichRowsCameIntoViewOrLeftIt) {
  GetControl().SetViewportHeight(50);
  EXPECT_THAT(shownOrHidden, ElementsAre(5, 6, 7));
  shownOrHidden.clear();
  GetControl().SetViewportHeight(61);
  EXPECT_THAT(shownOrHidden, ElementsAre(5, 6));
}

TEST_F(TreeControl, AGestureThatScrollsTellsToo) {
  GetControl().Click(7, kPlain);
  EXPECT_THAT(shownOrHidden, IsEmpty());
  GetControl().MoveCurrent(RowMove::kDown, kPlain);
  EXPECT_THAT(shownOrHidden, ElementsAre(0, 8));
}

TEST_F(TreeControl, AJumpAcrossABigTableTellsOfNoRowBetween) {
  Fill(1'000'000);
  GetControl().ScrollTo(5'000'000);
  EXPECT_EQ(shownOrHidden.size(), 16U);
}

TEST_F(TreeControl, WhatAProgramDoesTellsNobodyOfRowsInView) {
  tree->ScrollRowIntoView(tree->GetRow(12), true, true, true);
  Fill(5);
  tree->RemoveAllRows(true, true);
  Fill(20);
  EXPECT_THAT(shownOrHidden, IsEmpty());
}

TEST_F(TreeControl, WhoHearsOfARowMayRemoveThemAll) {
  int count = 0;
  WhenVisibilityChanges([&](Row*) {
    ++count;
    tree->RemoveAllRows(true, true);
  });
  GetControl().ScrollTo(40);
  EXPECT_EQ(count, 1);
  EXPECT_EQ(tree->CountRows(), 0U);
}

TEST_F(TreeControl, WhoHearsOfARowMayLetGoOfTheTable) {
  int count = 0;
  WhenVisibilityChanges([&](Row*) {
    ++count;
    tree.Reset();
  });
  GetControl().ScrollTo(20);
  EXPECT_EQ(count, 4);
}

TEST_F(TreeControl, WhoHearsOfASelectionMayLetGoOfTheTable) {
  WhenSelectionChanges([this](const std::vector<Row*>&) { tree.Reset(); });
  GetControl().MoveCurrent(RowMove::kLast, kPlain);
  EXPECT_FALSE(tree);
}

TEST_F(TreeControl, WhoHearsOfASelectionMayRefillTheTable) {
  WhenSelectionChanges([this](const std::vector<Row*>&) {
    WhenSelectionChanges([](const std::vector<Row*>&) {});
    tree->RemoveAllRows(true, true);
    Fill(3);
    Select(1);
  });
  GetControl().MoveCurrent(RowMove::kLast, kPlain);
  EXPECT_THAT(GetSelected(), ElementsAre(1));
  EXPECT_EQ(GetControl().GetScrollPosition(), 0);
}

TEST_F(TreeControl, AFailureOfTheVisibilityCallbackGoesToTheLogAndTheNextRowIsTold) {
  WhenVisibilityChanges([](Row*) { throw std::runtime_error("no eyes"); });
  GetControl().ScrollTo(10);
  EXPECT_THAT(runtime.GetLog().TakeFailures(), ElementsAre("a table's visibility callback: no eyes",
                                                           "a table's visibility callback: no eyes"));
}

TEST_F(TreeControl, ThereNeedNotBeAnybodyToTellOfRows) {
  tree->SetRowVisibilityChangedCallback(nullptr);
  GetControl().ScrollTo(10);
  tree->SetRowVisibilityChangedCallback(std::make_shared<const Tree::RowVisibilityChangedFunction>());
  GetControl().ScrollTo(20);
  EXPECT_THAT(shownOrHidden, IsEmpty());
}

TEST_F(TreeControl, WhatTheUserChangesHasTheTableDrawnAnew) {
  EXPECT_EQ(CountInvalidations([this] { GetControl().ScrollTo(10); }), 1);
  EXPECT_EQ(CountInvalidations([this] { GetControl().ScrollTo(10); }), 0);
  EXPECT_EQ(CountInvalidations([this] { GetControl().Click(12, kPlain); }), 1);
  EXPECT_EQ(CountInvalidations([this] { GetControl().Click(12, kPlain); }), 0);
  EXPECT_EQ(CountInvalidations([this] { GetControl().MoveCurrent(RowMove::kUp, kModifierControl); }),
            1);
  EXPECT_EQ(CountInvalidations([this] { GetControl().SelectAll(); }), 1);
  EXPECT_EQ(CountInvalidations([this] { GetControl().SetViewportHeight(90); }), 1);
  EXPECT_EQ(CountInvalidations([this] { GetControl().SetViewportHeight(90); }), 0);
}

TEST_F(TreeControl, WhatAProgramChangesHasTheTableDrawnAnew) {
  const auto scroll = [this](bool isRedrawing) {
    tree->ScrollRowIntoView(tree->GetRow(5), true, true, isRedrawing);
  };
  EXPECT_EQ(CountInvalidations([&] { scroll(true); }), 1);
  EXPECT_EQ(CountInvalidations([&] { scroll(true); }), 0);
  EXPECT_EQ(CountInvalidations([this] { tree->SetRowHeight(12); }), 1);
  EXPECT_EQ(CountInvalidations([this] { tree->SetRowHeight(12); }), 0);
  EXPECT_EQ(CountInvalidations([this] { tree->SetHeaderRow({}); }), 1);
  EXPECT_EQ(CountInvalidations([this] { tree->SetDrawCellOfRowCallback({}); }), 1);
  EXPECT_EQ(CountInvalidations([this] { tree->RemoveAllRows(true, true); }), 1);
  EXPECT_EQ(CountInvalidations([this] { tree->RemoveAllRows(true, false); }), 0);
  EXPECT_EQ(CountInvalidations([this] { Fill(500); }), 1) << "once laid out, not for each row";
  EXPECT_EQ(CountInvalidations([&] { scroll(false); }), 0);
}

TEST_F(TreeControl, GesturesStopOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(GetControl().Click(2, kPlain), "UI_MultiColumnTree::Control::Click");
  EXPECT_STOPS_OFF_MAIN_THREAD(GetControl().DragTo(2, kPlain), "UI_MultiColumnTree::Control::DragTo");
  EXPECT_STOPS_OFF_MAIN_THREAD(GetControl().MoveCurrent(RowMove::kUp, kPlain),
                               "UI_MultiColumnTree::Control::MoveCurrent");
  EXPECT_STOPS_OFF_MAIN_THREAD(GetControl().ScrollTo(2), "UI_MultiColumnTree::Control::ScrollTo");
}

}  // namespace
