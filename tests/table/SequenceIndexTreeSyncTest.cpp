#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "table/SelectionFixture.h"
#include "table/SelectionWatch.h"

namespace Vantrel {
namespace {

using drafts::Frame;

/// New rows are brought into line with the playhead.
using Syncing = SelectionFixture;

TEST_F(Syncing, NewRowsAreSelectedByThePlayheadThenHandledOnce) {
  Open(MakeClips("A", 4));
  GetPlayer()->SetCurrentPosition(Frame(25));
  tree->SetUpdateTimelineSelection(true);
  heard.clear();
  tree->RefreshDataListsAndTreeViewAsync();
  host.Settle();
  EXPECT_EQ(GetSelectedNames(), Names{"A3"});
  EXPECT_EQ(heard, (Names{"activation", "counts 0/0", "counts 1/4", "activation A3", "counts 1/4"}))
      << "removed, followed, handled";
}

TEST_F(Syncing, RightAfterRowsAreBuiltForTheFirstTimeNoEmptySelectionIsAnnounced) {
  tree->SetUpdateTimelineSelection(true);
  sequence = AddSequence(MakeClips("A", 4));
  host->GetProject().ActivateSequence(sequence);
  tree->SetSequence(sequence);
  host.Settle();
  EXPECT_EQ(heard, (Names{"counts 1/4", "activation A1", "counts 1/4"}));
}

TEST_F(Syncing, IsTheLastThingThatPopulatingDoes) {
  Open(MakeClips("A", 3));
  ClickBelow();
  const hostcalls::Recording recording;
  tree->RefreshDataListsAndTreeViewAsync();
  host.Settle();
  EXPECT_EQ(
      recording.GetCalls({"RemoveAllRows", "LayoutAfterAppendRow", "ScrollRowIntoView",
                          "GetSequencePlayer", "DeselectAllRows", "SelectRow"}),
      (Calls{"RemoveAllRows(true, true)", "LayoutAfterAppendRow()",
             "ScrollRowIntoView(0, true, true, true)", "GetSequencePlayer(0)", "DeselectAllRows(true)",
             "SelectRow(0, true)", "ScrollRowIntoView(0, true, true, true)"}));
}

TEST_F(Syncing, HandlesTheSelectionAlsoWhenItShowsThatTimeAlready) {
  Open(MakeClips("A", 4));
  GetPlayer()->SetCurrentPosition(Frame(25));
  Follow(25);
  ClickBelow();
  heard.clear();
  tree->SetUpdateTimelineSelection(true);
  tree->RefreshDataListsAndTreeViewAsync();
  const hostcalls::Hook select("GetSequencePlayer", [this] { tree->SelectRow(tree->GetRow(0), true); });
  host.Settle();
  EXPECT_EQ(heard, (Names{"activation A1", "counts 1/4"}));
}

TEST_F(Syncing, OnDutyWithOneRowUnderThePlayheadMovesItToThatRowsStart) {
  Open(MakeClips("A", 4));
  tree->SetOnDuty(true);
  GetPlayer()->SetCurrentPosition(Frame(25));
  tree->RefreshDataListsAndTreeViewAsync();
  host.Settle();
  EXPECT_EQ(GetPlayerFrame(), 20);
  EXPECT_EQ(GetSelectedNames(), Names{"A3"});
}

TEST_F(Syncing, OnDutyWithSeveralRowsUnderThePlayheadLeavesItWhereItIs) {
  auto draft = MakeClips("A", 4);
  drafts::AddClip(drafts::AddTrack(draft), "B", 0, 40);
  Open(std::move(draft));
  tree->SetOnDuty(true);
  GetPlayer()->SetCurrentPosition(Frame(25));
  tree->RefreshDataListsAndTreeViewAsync();
  host.Settle();
  EXPECT_EQ(GetPlayerFrame(), 25);
  EXPECT_EQ(GetSelectedNames(), (Names{"B", "A3"}));
}

TEST_F(Syncing, OffDutyLeavesThePlayheadWhereItIs) {
  Open(MakeClips("A", 4));
  GetPlayer()->SetCurrentPosition(Frame(25));
  tree->RefreshDataListsAndTreeViewAsync();
  host.Settle();
  EXPECT_EQ(GetPlayerFrame(), 25);
}

TEST_F(Syncing, WithoutASequenceOnlyTheCountsAreAnnouncedOnce) {
  Open(MakeClips("A", 4));
  ClickBelow();
  tree->SetUpdateTimelineSelection(true);
  heard.clear();
  const hostcalls::Recording recording;
  tree->SetSequence({});
  host.Settle();
  EXPECT_EQ(heard, Names{"counts 0/0"});
  EXPECT_EQ(recording.Count("GetSequencePlayer"), 0U);
  EXPECT_EQ(recording.Count("DeselectAllRows"), 0U);
}

TEST_F(Syncing, WithoutAPlayerOnlyTheCountsAreAnnouncedOnce) {
  tree->SetUpdateTimelineSelection(true);
  tree->SetOnDuty(true);
  const hostcalls::Recording recording;
  ShowSequence(MakeClips("A", 12));
  EXPECT_EQ(heard, Names{"counts 0/12"});
  EXPECT_EQ(recording.Count("DeselectAllRows"), 0U);
  EXPECT_EQ(recording.Count("SelectRow"), 0U);
}

TEST_F(Syncing, WithoutAPlayerTheSameRowNumberStaysAtTheTop) {
  ShowSequence(MakeClips("A", 40));
  tree->GetControl().ScrollTo(18 * 12);
  tree->RefreshDataListsAndTreeViewAsync();
  host.Settle();
  EXPECT_EQ(GetTopPosition(), 12U);
}

TEST_F(Syncing, WithAPlayerThePlayheadsRowsAreScrolledToAfterTheTopRowWas) {
  Open(MakeClips("A", 100));
  tree->GetControl().ScrollTo(18 * 12);
  GetPlayer()->SetCurrentPosition(Frame(495));
  const hostcalls::Recording recording;
  tree->RefreshDataListsAndTreeViewAsync();
  host.Settle();
  EXPECT_EQ(
      recording.GetCalls({"ScrollRowIntoView"}),
      (Calls{"ScrollRowIntoView(12, true, true, true)", "ScrollRowIntoView(43, true, true, true)"}));
  EXPECT_EQ(GetTopPosition(), 43U);
}

TEST_F(Syncing, AStepThatBringsNoRowsBringsNothingIntoLine) {
  Open(MakeClips("A", 4));
  Click(3);
  for (int i = 0; i < 2; ++i) tree->RefreshDataListsAndTreeViewAsync();
  host.GetPool().RunUntilEmpty();
  ASSERT_TRUE(RunOneMainStep());
  Click(3);
  heard.clear();
  ASSERT_TRUE(RunOneMainStep());
  EXPECT_EQ(GetSelectedNames(), Names{"A4"});
  EXPECT_TRUE(heard.empty());
}

TEST_F(Syncing, RowsOfTheSequenceBeforeAreInLineWithTheNewOnesPlayheadForAMoment) {
  Open(MakeClips("Old", 4));
  tree->RefreshDataListsAndTreeViewAsync();
  host.GetPool().RunUntilEmpty();
  sequence = AddSequence(MakeClips("New", 4));
  host->GetProject().ActivateSequence(sequence);
  GetPlayer()->SetCurrentPosition(Frame(25));
  tree->SetSequence(sequence);
  ASSERT_TRUE(RunOneMainStep());
  EXPECT_EQ(GetSelectedNames(), Names{"Old3"});
  host.Settle();
  EXPECT_EQ(GetSelectedNames(), Names{"New3"});
}

TEST_F(Syncing, OldRowsUnderNoSequenceCanBeSelectedWithoutAPlayer) {
  Open(MakeClips("Old", 4));
  tree->SetOnDuty(true);
  tree->SetSequence({});
  heard.clear();
  Click(2);
  EXPECT_EQ(heard, Names{"counts 1/4"});
}

}  // namespace
}  // namespace Vantrel
