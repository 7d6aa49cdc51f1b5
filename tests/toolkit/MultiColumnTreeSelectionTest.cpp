#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

#include "host/qelcore/Exceptions.h"
#include "toolkit/OffMainThread.h"
#include "toolkit/TreeFixture.h"

namespace {

using qelcore::config::qel_exception;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr bool kIsExtending = true;
constexpr bool kIsNotifying = true;
constexpr bool kIsRedrawing = true;

class TreeSelection : public TreeFixture {
 protected:
  TreeSelection() { Fill(20); }
};

TEST_F(TreeSelection, RowsAreSelectedOneByOneAndAnsweredFromTheTop) {
  for (const std::size_t position : {9U, 2U, 17U}) Select(position);
  EXPECT_THAT(GetSelected(), ElementsAre(2, 9, 17));
}

TEST_F(TreeSelection, SelectingWithoutExtendingReplacesWhatWasSelected) {
  Select(9);
  Select(2);
  Select(5, !kIsExtending);
  EXPECT_THAT(GetSelected(), ElementsAre(5));
}

TEST_F(TreeSelection, ATableOfSingleSelectionNeverExtends) {
  tree->SetSupportMultipleSelections(false);
  Select(9);
  Select(2);
  EXPECT_THAT(GetSelected(), ElementsAre(2));
}

TEST_F(TreeSelection, AProgramThatSelectsDoesNotHearItself) {
  Select(9);
  Select(2);
  Select(5, !kIsExtending);
  EXPECT_THAT(selections, IsEmpty());
}

TEST_F(TreeSelection, ARowSelectedByAProgramIsTheCurrentOne) {
  Select(9);
  Select(2);
  EXPECT_EQ(GetControl().GetCurrent(), 2U);
  GetControl().MoveCurrent(standalone::RowMove::kDown, 0);
  EXPECT_THAT(GetSelected(), ElementsAre(3));
}

TEST_F(TreeSelection, SelectingScrollsNothing) {
  Select(19);
  EXPECT_EQ(GetControl().GetScrollPosition(), 0);
}

TEST_F(TreeSelection, OnlyRowsOfTheTableCanBeSelected) {
  const qelcore::Ref other(new Tree(0, 10));
  Row* const foreign = other->CreateAndAppendRow(nullptr, true, false);
  EXPECT_THROW(tree->SelectRow(foreign, kIsExtending), qel_exception);
  EXPECT_THROW(tree->SelectRow(nullptr, kIsExtending), qel_exception);
  EXPECT_THAT(GetSelected(), IsEmpty());
}

TEST_F(TreeSelection, DeselectingWithNotificationTellsOnceOfAnEmptySelection) {
  Select(2);
  Select(9);
  tree->DeselectAllRows(kIsNotifying);
  EXPECT_THAT(selections, ElementsAre(IsEmpty()));
  EXPECT_THAT(GetSelected(), IsEmpty());
}

TEST_F(TreeSelection, DeselectingWhereNothingIsSelectedTellsNobody) {
  tree->DeselectAllRows(kIsNotifying);
  EXPECT_THAT(selections, IsEmpty());
}

TEST_F(TreeSelection, DeselectingWithoutNotificationTellsNobody) {
  Select(2);
  tree->DeselectAllRows(!kIsNotifying);
  EXPECT_THAT(selections, IsEmpty());
  EXPECT_THAT(GetSelected(), IsEmpty());
}

TEST_F(TreeSelection, WhoHearsOfADeselectionFindsNothingSelected) {
  Select(2);
  int count = 0;
  WhenSelectionChanges([&](const std::vector<Row*>& rows) {
    ++count;
    EXPECT_THAT(rows, IsEmpty());
    EXPECT_THAT(tree->GetSelectedRows(), IsEmpty());
  });
  tree->DeselectAllRows(kIsNotifying);
  EXPECT_EQ(count, 1);
}

TEST_F(TreeSelection, RemovingSelectedRowsTellsOnceTheyAreGone) {
  Select(2);
  int count = 0;
  WhenSelectionChanges([&](const std::vector<Row*>& rows) {
    ++count;
    EXPECT_THAT(rows, IsEmpty());
    EXPECT_EQ(tree->CountRows(), 0U);
    EXPECT_THAT(tree->GetSelectedRows(), IsEmpty());
  });
  tree->RemoveAllRows(kIsNotifying, kIsRedrawing);
  EXPECT_EQ(count, 1);
}

TEST_F(TreeSelection, RemovingRowsOfWhichNoneIsSelectedTellsNobody) {
  tree->RemoveAllRows(kIsNotifying, kIsRedrawing);
  EXPECT_THAT(selections, IsEmpty());
}

TEST_F(TreeSelection, RemovingRowsWithoutNotificationTellsNobodyAndDeselects) {
  Select(2);
  tree->RemoveAllRows(!kIsNotifying, kIsRedrawing);
  Fill(20);
  EXPECT_THAT(selections, IsEmpty());
  EXPECT_THAT(GetSelected(), IsEmpty());
  EXPECT_EQ(GetControl().GetCurrent(), std::nullopt);
}

TEST_F(TreeSelection, AppendedRowsLeaveTheSelectionAlone) {
  Select(2);
  Fill(20);
  EXPECT_THAT(GetSelected(), ElementsAre(2));
}

TEST_F(TreeSelection, ThereNeedNotBeAnybodyToTell) {
  for (const auto& none : {Tree::SharedRowsSelectionChangedFunction(),
                           std::make_shared<const Tree::RowsSelectionChangedFunction>()}) {
    Select(2);
    tree->SetRowsSelectionChangedCallback(none);
    tree->DeselectAllRows(kIsNotifying);
    EXPECT_THAT(GetSelected(), IsEmpty());
  }
  EXPECT_THAT(selections, IsEmpty());
}

TEST_F(TreeSelection, AFailureOfTheCallbackGoesToTheLog) {
  Select(2);
  WhenSelectionChanges([](const std::vector<Row*>&) { throw std::runtime_error("no timeline"); });
  EXPECT_NO_THROW(tree->DeselectAllRows(kIsNotifying));
  EXPECT_THAT(runtime.GetLog().TakeFailures(),
              ElementsAre("a table's selection callback: no timeline"));
}

TEST_F(TreeSelection, ACallbackThatRegistersAnotherOneIsHeldUntilItIsDone) {
  auto kept = std::make_shared<int>(0);
  const std::weak_ptr<int> watched = kept;
  WhenSelectionChanges([this, kept = std::move(kept)](const std::vector<Row*>&) {
    tree->SetRowsSelectionChangedCallback(nullptr);
    ++*kept;
  });
  Select(2);
  tree->DeselectAllRows(kIsNotifying);
  EXPECT_TRUE(watched.expired()) << "and no longer";
}

TEST_F(TreeSelection, ACallbackMaySelectAndRemoveRows) {
  WhenSelectionChanges([this](const std::vector<Row*>&) {
    Select(4);
    tree->RemoveAllRows(!kIsNotifying, kIsRedrawing);
    Fill(3);
    Select(1);
  });
  Select(2);
  tree->DeselectAllRows(kIsNotifying);
  EXPECT_EQ(tree->CountRows(), 3U);
  EXPECT_THAT(GetSelected(), ElementsAre(1));
}

TEST_F(TreeSelection, ACallbackMayLetGoOfTheTable) {
  WhenSelectionChanges([this](const std::vector<Row*>&) { tree.Reset(); });
  Select(2);
  tree->DeselectAllRows(kIsNotifying);
  EXPECT_FALSE(tree);
}

TEST_F(TreeSelection, CallbacksGoWithTheTable) {
  auto kept = std::make_shared<int>(0);
  const std::weak_ptr<int> watched = kept;
  WhenSelectionChanges([kept](const std::vector<Row*>&) {});
  WhenVisibilityChanges([kept = std::move(kept)](Row*) {});
  tree.Reset();
  EXPECT_TRUE(watched.expired());
}

TEST_F(TreeSelection, WhatChangesTheSelectionHasTheTableDrawnAnew) {
  EXPECT_EQ(CountInvalidations([this] { Select(2); }), 1);
  EXPECT_EQ(CountInvalidations([this] { tree->DeselectAllRows(!kIsNotifying); }), 1);
  EXPECT_EQ(CountInvalidations([this] { tree->DeselectAllRows(!kIsNotifying); }), 0);
}

TEST_F(TreeSelection, OperationsStopOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->GetSelectedRows(), "UI_MultiColumnTree::GetSelectedRows");
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->SelectRow(nullptr, kIsExtending), "UI_MultiColumnTree::SelectRow");
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->DeselectAllRows(kIsNotifying),
                               "UI_MultiColumnTree::DeselectAllRows");
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->SetRowsSelectionChangedCallback(nullptr),
                               "UI_MultiColumnTree::SetRowsSelectionChangedCallback");
  EXPECT_STOPS_OFF_MAIN_THREAD(tree->SetRowVisibilityChangedCallback(nullptr),
                               "UI_MultiColumnTree::SetRowVisibilityChangedCallback");
}

}  // namespace
