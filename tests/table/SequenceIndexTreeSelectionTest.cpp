#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "standalone/runtime/StationRegistry.h"
#include "table/SelectionFixture.h"
#include "table/SelectionWatch.h"

namespace Vantrel {
namespace {

using Row = SequenceIndexTree::Row;
using Selection = SelectionFixture;

// Set-up

TEST_F(Selection, CallbacksAreRegisteredOnceAfterTheHeaderIsSetUp) {
  const hostcalls::Recording recording;
  const auto other = MakeTree();
  EXPECT_EQ(
      recording.GetCalls({"SetSupportMultipleSelections", "SetHeaderRow", "SetAllowColumnMovingByUser",
                          "ShowSortIndicator", "SetDrawCellOfRowCallback",
                          "SetRowsSelectionChangedCallback", "SetRowVisibilityChangedCallback"}),
      (Calls{"SetSupportMultipleSelections(true)", "SetHeaderRow()",
             "SetAllowColumnMovingByUser(true, false)", "ShowSortIndicator(false)",
             "SetDrawCellOfRowCallback()", "SetRowsSelectionChangedCallback()",
             "SetRowVisibilityChangedCallback()"}));
}

TEST_F(Selection, SeveralRowsCanBeSelected) {
  Open(MakeClips("A", 5));
  Click(1, {3});
  EXPECT_EQ(GetSelectedNames(), (Names{"A2", "A4"}));
}

TEST_F(Selection, FunctionsThatOutliveTheirTableDoNothingAndDoNotKeepItAlive) {
  SelectionWatch watch;
  auto closed = MakeTree();
  Row* const row = closed->CreateAndAppendRow(nullptr, true, false);
  const auto station = closed->GetStationID();
  closed.Reset();
  EXPECT_FALSE(host->GetRuntime().GetStations().IsRegistered(station));
  const hostcalls::Recording recording;
  (*watch.rowsSelectionChanged)({row});
  (*watch.rowVisibilityChanged)(row);
  EXPECT_TRUE(recording.GetCalls().empty());
}

TEST_F(Selection, ARowThatComesIntoViewIsAskedAboutAndNothingElseHappens) {
  const SelectionWatch watch;
  tree = MakeTree();
  ShowSequence(MakeClips("A", 3));
  const hostcalls::Recording recording;
  (*watch.rowVisibilityChanged)(tree->GetRow(1));
  EXPECT_EQ(recording.GetCalls(), (Calls{"IsRowVisible()"}));
}

TEST_F(Selection, NoRowThatComesIntoViewAsksNothing) {
  const SelectionWatch watch;
  tree = MakeTree();
  const hostcalls::Recording recording;
  (*watch.rowVisibilityChanged)(nullptr);
  EXPECT_TRUE(recording.GetCalls().empty());
}

TEST_F(Selection, ScrollingAsksAboutRowsThatComeIntoView) {
  Open(MakeClips("A", 40));
  const hostcalls::Recording recording;
  tree->GetControl().ScrollTo(18);
  EXPECT_EQ(recording.Count("IsRowVisible"), 2U) << "one went, one came";
  EXPECT_TRUE(heard.empty());
}

// Counts

TEST_F(Selection, SelectingAnnouncesHowManyRowsOfHowMany) {
  Open(MakeClips("A", 12));
  Click(2, {5, 7});
  EXPECT_EQ(heard, (Names{"counts 1/12", "counts 2/12", "counts 3/12"}));
}

TEST_F(Selection, DeselectingAnnouncesThatNoneIsSelected) {
  Open(MakeClips("A", 12));
  Click(2);
  heard.clear();
  ClickBelow();
  EXPECT_EQ(heard, Names{"counts 0/12"});
}

TEST_F(Selection, TheCountsComeLastAndWhetherOrNotTheTimelineFollows) {
  Open(MakeClips("A", 3));
  for (const bool isFollowing : {false, true}) {
    tree->SetUpdateTimelineSelection(isFollowing);
    ClickBelow();
    heard.clear();
    Click(1);
    ASSERT_FALSE(heard.empty());
    EXPECT_EQ(heard.back(), "counts 1/3");
    EXPECT_EQ(heard.size(), isFollowing ? 2U : 1U);
  }
}

TEST_F(Selection, TheCountsComeFromTheTablesOwnStation) {
  Open(MakeClips("A", 3));
  const hostcalls::Recording recording;
  Click(1);
  EXPECT_EQ(recording.GetCalls({"BroadcastMessageOnMainThread", "AsyncBroadcastMessagePtr"}),
            Calls{"BroadcastMessageOnMainThread(" + GetStation() + ")"});
}

TEST_F(Selection, ReadsTheSelectedRowsThenCountsAllRows) {
  Open(MakeClips("A", 3));
  const hostcalls::Recording recording;
  Click(1);
  const auto calls = recording.GetCalls({"GetSelectedRows", "CountRows"});
  ASSERT_GE(calls.size(), 2U);
  EXPECT_EQ(calls.front(), "GetSelectedRows()");
  EXPECT_EQ(calls.back(), "CountRows()");
  EXPECT_EQ(std::ranges::count(calls, "CountRows()"), 1);
}

// The timeline

TEST_F(Selection, TheTimelineIsToldWhichItemsAreSelected) {
  Open(MakeClips("A", 4));
  tree->SetUpdateTimelineSelection(true);
  Click(3, {1});
  EXPECT_EQ(heard, (Names{"activation A4", "counts 1/4", "activation A2 A4", "counts 2/4"}));
  ASSERT_EQ(activated.size(), 2U);
  for (const auto& item : activated) EXPECT_EQ(item.sequence, sequence);
  EXPECT_EQ(activated[0].trackItem, tree->GetFilteredList()[1].trackItem);
}

TEST_F(Selection, TheTimelineIsToldThatNothingIsSelected) {
  Open(MakeClips("A", 4));
  Click(1);
  tree->SetUpdateTimelineSelection(true);
  heard.clear();
  ClickBelow();
  EXPECT_EQ(heard, (Names{"activation", "counts 0/4"}));
}

TEST_F(Selection, TheTimelineIsToldNothingWhileItDoesNotFollow) {
  Open(MakeClips("A", 4));
  const hostcalls::Recording recording;
  Click(1, {2});
  ClickBelow();
  EXPECT_TRUE(activated.empty());
  const auto broadcasts = recording.GetCalls({"BroadcastMessageOnMainThread"});
  EXPECT_EQ(broadcasts.size(), 3U) << "the counts";
}

TEST_F(Selection, TheTimelineIsToldOffDutyAndOnDutyAlike) {
  Open(MakeClips("A", 4));
  tree->SetUpdateTimelineSelection(true);
  for (const bool isOnDuty : {false, true}) {
    tree->SetOnDuty(isOnDuty);
    ClickBelow();
    heard.clear();
    Click(0, {1, 2});
    EXPECT_EQ(heard, (Names{"activation A1", "counts 1/4", "activation A1 A2", "counts 2/4",
                            "activation A1 A2 A3", "counts 3/4"}));
  }
}

TEST_F(Selection, TheTimelineIsToldInTheOrderOfTheRowsWhateverOrderTheToolkitHas) {
  Open(MakeClips("A", 4));
  tree->SetUpdateTimelineSelection(true);
  SelectionWatch watch;
  watch.isReversingSelectedRows = true;
  tree->GetControl().SelectAll();
  EXPECT_EQ(heard, (Names{"activation A1 A2 A3 A4", "counts 4/4"}));
}

TEST_F(Selection, TheTimelineIsToldOfASelectedGapToo) {
  Open(MakeClipGapClip());
  tree->SetOptions(KeepingGaps());
  tree->SetUpdateTimelineSelection(true);
  host.Settle();
  heard.clear();
  Click(1);
  EXPECT_EQ(heard, (Names{"activation Gap", "counts 1/3"}));
}

TEST_F(Selection, InAFilteredTableTheShownRowsItemsAreMeant) {
  Open(MakeClips("A", 12));
  tree->SetSearchText(qelcore::UTF8String("a1"));
  host.Settle();
  ASSERT_EQ(GetShownNames(), (Names{"A1", "A10", "A11", "A12"}));
  tree->SetUpdateTimelineSelection(true);
  ClickBelow();
  heard.clear();
  Click(2);
  EXPECT_EQ(heard, (Names{"activation A11", "counts 1/4"}));
}

TEST_F(Selection, ARowWithoutDataIsLeftOut) {
  Open(MakeClips("A", 2));
  tree->CreateAndAppendRow(nullptr, true, false);
  tree->SetUpdateTimelineSelection(true);
  tree->SetOnDuty(true);
  const auto before = GetPlayerFrame();
  ClickBelow();
  heard.clear();
  Click(2, {1});
  EXPECT_EQ(heard, (Names{"activation", "counts 1/3", "activation A2", "counts 2/3"}));
  EXPECT_EQ(GetPlayerFrame(), before);
}

TEST_F(Selection, TheMessageKeepsItsItemsWhenTheRowsAreGone) {
  Open(MakeClips("A", 2));
  tree->SetUpdateTimelineSelection(true);
  {
    SelectionWatch watch;
    watch.isOffMainThread = true;
    Click(1);
  }
  tree->SetSequence({});
  host.GetPool().RunUntilEmpty();
  EXPECT_TRUE(heard.empty()) << "queued only";
  host.Settle();
  ASSERT_FALSE(heard.empty());
  EXPECT_EQ(heard.front(), "activation A2");
}

TEST_F(Selection, DutyAndFollowingOutliveANewSequence) {
  Open(MakeClips("A", 3));
  tree->SetOnDuty(true);
  tree->SetUpdateTimelineSelection(true);
  Open(MakeClips("B", 3));
  heard.clear();
  ClickBelow();
  Click(2);
  EXPECT_EQ(GetPlayerFrame(), 20);
  EXPECT_EQ(heard, (Names{"activation", "counts 0/3", "activation B3", "counts 1/3"}));
}

// Threads

TEST_F(Selection, OnTheMainThreadMessagesAreDeliveredAtOnce) {
  Open(MakeClips("A", 2));
  tree->SetUpdateTimelineSelection(true);
  const hostcalls::Recording recording;
  Click(1);
  EXPECT_EQ(heard, (Names{"activation A2", "counts 1/2"}));
  EXPECT_EQ(recording.GetCalls({"BroadcastMessageOnMainThread", "AsyncBroadcastMessagePtr"}),
            (Calls{"BroadcastMessageOnMainThread(" +
                       std::string(MZ::kStation_TrackItemActivation.View()) + ")",
                   "BroadcastMessageOnMainThread(" + GetStation() + ")"}));
}

TEST_F(Selection, OffTheMainThreadMessagesAreQueued) {
  Open(MakeClips("A", 2));
  tree->SetUpdateTimelineSelection(true);
  const hostcalls::Recording recording;
  {
    SelectionWatch watch;
    watch.isOffMainThread = true;
    Click(1);
  }
  EXPECT_TRUE(heard.empty());
  EXPECT_EQ(recording.Count("AsyncBroadcastMessagePtr"), 2U);
  EXPECT_EQ(recording.Count("BroadcastMessageOnMainThread"), 0U);
  host.Settle();
  EXPECT_EQ(heard, (Names{"activation A2", "counts 1/2"}));
}

TEST_F(Selection, NothingIsBroadcastUnderTheDataMutex) {
  Open(MakeClips("A", 2));
  tree->SetUpdateTimelineSelection(true);
  tree->SetOnDuty(true);
  int depth = 0;
  int broadcasts = 0;
  const hostcalls::Hook lock("Lock", [&] { ++depth; });
  const hostcalls::Hook unlock("Unlock", [&] { --depth; });
  const hostcalls::Hook look("BroadcastMessageOnMainThread", [&] {
    ++broadcasts;
    EXPECT_EQ(depth, 0);
  });
  Click(1);
  EXPECT_GE(broadcasts, 3) << "the player's, the timeline's and the table's";
}

}  // namespace
}  // namespace Vantrel
