#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "standalone/runtime/StationRegistry.h"
#include "support/Fakes.h"
#include "table/RefreshFixture.h"
#include "table/ScheduleWatch.h"

namespace Vantrel {
namespace {

using qelcore::Ref;
using Refresh = RefreshFixture;

// Scheduling

TEST_F(Refresh, OnlySchedulesAndReturnsAtOnce) {
  sequence = AddSequence(MakeClips("A", 3));
  host.Settle();
  const hostcalls::Recording recording;
  tree->SetSequence(sequence);
  EXPECT_EQ(recording.Count("VisitSequence"), 0U);
  EXPECT_EQ(host.GetPool().CountWaiting(), 1U);
  EXPECT_EQ(tree->CountRows(), 0U);
}

TEST_F(Refresh, GivesTheSerialExecutorForBuildAndContinuationAndNoDelay) {
  ScheduleWatch watch;
  const auto other = MakeTree();
  other->RefreshDataListsAndTreeViewAsync();
  EXPECT_NE(watch.subExecutor, nullptr);
  EXPECT_EQ(watch.executor, watch.subExecutor);
  EXPECT_EQ(watch.continuationExecutor, watch.subExecutor);
  EXPECT_EQ(watch.delay.count(), 0);
}

TEST_F(Refresh, ThreeQuickRefreshesRunThreeBuildsThenThreeContinuations) {
  tree->SetSequence(AddSequence(MakeClips("A", 3)));
  host.Settle();
  const hostcalls::Recording recording;
  for (int i = 0; i < 3; ++i) tree->RefreshDataListsAndTreeViewAsync();
  host.GetPool().RunUntilEmpty();
  EXPECT_EQ(
      recording.GetCalls({"VisitSequence", "CallFromMainThread"}),
      (Calls{"VisitSequence()", "VisitSequence()", "VisitSequence()", "CallFromMainThread(0, true)",
             "CallFromMainThread(0, true)", "CallFromMainThread(0, true)"}));
}

TEST_F(Refresh, ThreeQuickRefreshesPopulateOnceWithTheThirdBuildsRows) {
  ShowSequence(MakeClips("A", 1));
  for (int i = 0; i < 3; ++i) tree->RefreshDataListsAndTreeViewAsync();
  for (int build = 2; build <= 4; ++build) {
    Replace(sequence, MakeClips("A", build));
    ASSERT_TRUE(RunOneTask());
  }
  host.GetPool().RunUntilEmpty();
  const hostcalls::Recording recording;
  ASSERT_TRUE(RunOneMainStep());
  EXPECT_EQ(GetShownNames(), (Names{"A1", "A2", "A3", "A4"}));
  EXPECT_EQ(recording.Count("RemoveAllRows"), 1U);
  ASSERT_TRUE(RunOneMainStep());
  ASSERT_TRUE(RunOneMainStep());
  EXPECT_EQ(recording.Count("RemoveAllRows"), 1U) << "nothing new to show";
  EXPECT_EQ(recording.Count("ScrollRowIntoView"), 1U);
}

TEST_F(Refresh, ALaterBuildReplacesListsThatWereNotTakenYet) {
  ShowSequence(MakeClips("A", 1));
  tree->RefreshDataListsAndTreeViewAsync();
  Replace(sequence, MakeClips("B", 2));
  host.GetPool().RunUntilEmpty();
  tree->RefreshDataListsAndTreeViewAsync();
  Replace(sequence, MakeClips("C", 3));
  host.GetPool().RunUntilEmpty();
  ASSERT_TRUE(RunOneMainStep());
  EXPECT_EQ(GetShownNames(), (Names{"C1", "C2", "C3"}));
}

TEST_F(Refresh, ARefreshDuringABuildRunsAfterIt) {
  ShowSequence(MakeClips("A", 1));
  const hostcalls::Recording recording;
  {
    bool isFirst = true;
    const hostcalls::Hook hook("VisitSequence", [&] {
      if (std::exchange(isFirst, false)) tree->RefreshDataListsAndTreeViewAsync();
    });
    tree->RefreshDataListsAndTreeViewAsync();
    host.Settle();
  }
  EXPECT_EQ(recording.Count("VisitSequence"), 2U);
  EXPECT_EQ(recording.Count("CallFromMainThread"), 2U);
}

TEST_F(Refresh, HoldsTheTableWhileItIsScheduling) {
  const auto station = tree->GetStationID();
  bool wasAliveAfterTheLastOwnerWent = false;
  const hostcalls::Hook hook("Schedule", [&] {
    tree.Reset();
    wasAliveAfterTheLastOwnerWent = host->GetRuntime().GetStations().IsRegistered(station);
  });
  tree->RefreshDataListsAndTreeViewAsync();
  EXPECT_TRUE(wasAliveAfterTheLastOwnerWent);
  EXPECT_FALSE(host->GetRuntime().GetStations().IsRegistered(station));
}

TEST_F(Refresh, CanBeAskedForOnAnyThread) {
  sequence = AddSequence(MakeClips("A", 2));
  tree->SetSequence(sequence);
  const hostcalls::Recording recording;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) threads.emplace_back([&] { tree->RefreshDataListsAndTreeViewAsync(); });
  for (auto& thread : threads) thread.join();
  host.Settle();
  EXPECT_EQ(recording.Count("VisitSequence"), 5U);
  EXPECT_EQ(recording.Count("CallFromMainThread"), 5U) << "no build without its continuation";
  EXPECT_EQ(GetShownNames(), (Names{"A1", "A2"}));
}

TEST_F(Refresh, EveryLockOfTheDataMutexIsNamelessAndWaitsAMinute) {
  const hostcalls::Recording recording;
  ShowSequence(MakeClips("A", 2));
  tree->SetOptions({});
  host.Settle();
  const auto locks = recording.GetCalls({"Lock"});
  EXPECT_FALSE(locks.empty());
  for (const auto& call : locks) EXPECT_EQ(call, "Lock(null, 60000)");
  EXPECT_EQ(recording.Count("Unlock"), locks.size());
}

TEST_F(Refresh, OptionsAreTakenOverAndScheduledInOneHoldOfTheMutex) {
  const hostcalls::Recording recording;
  tree->SetOptions(KeepingGaps());
  EXPECT_EQ(recording.GetCalls({"Lock", "Schedule", "Unlock"}),
            (Calls{"Lock(null, 60000)", "Lock(null, 60000)", "Schedule()", "Unlock()", "Unlock()"}));
}

TEST_F(Refresh, ASequenceIsStoredBeforeItsBuildIsScheduled) {
  const auto shown = AddSequence(MakeClips("A", 1));
  Ref<BE::ISequence> storedAtScheduling;
  const hostcalls::Hook hook("Schedule", [&] { storedAtScheduling = tree->GetSequence(); });
  const hostcalls::Recording recording;
  tree->SetSequence(shown);
  EXPECT_EQ(storedAtScheduling, shown);
  EXPECT_EQ(recording.GetCalls({"Lock", "Schedule", "Unlock"}),
            (Calls{"Lock(null, 60000)", "Unlock()", "Lock(null, 60000)", "Schedule()", "Unlock()"}));
}

// Building

TEST_F(Refresh, TableRowsStandForTheFilteredListInItsOrder) {
  auto draft = drafts::MakeSequence();
  auto& video = drafts::AddTrack(draft);
  drafts::AddClip(video, "second", 10, 20);
  auto& audio = drafts::AddTrack(draft, standalone::TrackKind::kAudio);
  drafts::AddClip(audio, "first", 0, 10);
  ShowSequence(std::move(draft));
  EXPECT_EQ(GetShownNames(), (Names{"first", "second"}));
  EXPECT_EQ(tree->CountRows(), 2U);
  EXPECT_EQ(tree->GetFilteredList()[0].index, 0U);
  EXPECT_EQ(tree->GetFilteredList()[1].index, 1U);
}

class TrackGroup final : public fakes::Counted<BE::ITrackGroup> {
 public:
  explicit TrackGroup(const BE::MediaType& identifier) : identifier(identifier) {}
  void* QueryInterface(qelcore::InterfaceID id) noexcept override {
    return id == BE::ITrackGroup::kInterfaceID ? static_cast<BE::ITrackGroup*>(this) : nullptr;
  }
  BE::MediaType GetIdentifier() const override { return identifier; }

 private:
  const BE::MediaType identifier;
};

TEST_F(Refresh, ABuildVisitsPictureAndSoundTracksAndNoOthers) {
  std::vector<BE::VisitorStatus> answers;
  ScheduleWatch watch;
  watch.visit = [&](const BE::SequenceVisitor& visitor) {
    for (const BE::MediaType& identifier :
         {BE::kMediaType_Video, BE::kMediaType_Audio, qelcore::utility::MakeGuid(1, 2)}) {
      answers.push_back(visitor(*Ref<TrackGroup>(new TrackGroup(identifier))));
    }
  };
  ShowSequence(MakeClips("A", 1));
  EXPECT_EQ(answers, (std::vector{BE::VisitorStatus::kContinue, BE::VisitorStatus::kContinue,
                                  BE::VisitorStatus::kDoNotDescend}));
}

TEST_F(Refresh, WithoutKeepingGapsNoGapStandsInEitherListAndNumbersHaveNoHoles) {
  ShowSequence(MakeClipGapClip());
  EXPECT_EQ(GetNames(tree->GetFullList()), (Names{"before", "after"}));
  EXPECT_EQ(GetShownNames(), (Names{"before", "after"}));
  EXPECT_EQ(tree->GetFilteredList()[1].index, 1U);
}

TEST_F(Refresh, KeepingGapsPutsThemIntoBothListsNumberedLikeClips) {
  ShowSequence(MakeClipGapClip());
  tree->SetOptions(KeepingGaps());
  host.Settle();
  EXPECT_EQ(GetNames(tree->GetFullList()), (Names{"before", "Gap", "after"}));
  EXPECT_EQ(GetShownNames(), (Names{"before", "Gap", "after"}));
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(tree->GetFilteredList()[i].index, i);
}

TEST_F(Refresh, ShortGapsAreMarkedByTheThresholdInBothLists) {
  ShowSequence(MakeClipGapClip());
  for (const auto* list : {&tree->GetFullList(), &tree->GetFilteredList()}) {
    EXPECT_TRUE((*list)[0].endFlagged) << "three frames are short with the threshold of 5";
    EXPECT_TRUE((*list)[1].startFlagged);
    EXPECT_FALSE((*list)[0].startFlagged);
  }
  MZ::SequenceIndex::Options options;
  options.shortGapThreshold = 2;
  tree->SetOptions(options);
  host.Settle();
  EXPECT_FALSE(tree->GetFilteredList()[0].endFlagged);
}

TEST_F(Refresh, OptionsChangedDuringTheVisitAreAlreadyRead) {
  ShowSequence(MakeClipGapClip());
  bool isFirst = true;
  const hostcalls::Hook hook("VisitSequence", [&] {
    if (std::exchange(isFirst, false)) tree->SetOptions(KeepingGaps());
  });
  tree->RefreshDataListsAndTreeViewAsync();
  ASSERT_TRUE(RunOneTask());
  ASSERT_TRUE(RunOneTask());
  host.GetPool().RunUntilEmpty();
  ASSERT_TRUE(RunOneMainStep());
  EXPECT_EQ(GetShownNames(), (Names{"before", "Gap", "after"}));
}

TEST_F(Refresh, TheFilteredListReadsTheGapFlagAgainAndKeepsTheNumbersOfTheFullList) {
  ShowSequence(MakeClipGapClip());
  tree->SetOptions(KeepingGaps());
  {
    int locks = 0;
    const hostcalls::Hook change("Lock", [&] {
      if (++locks == 3) tree->SetOptions({});
    });
    ASSERT_TRUE(RunOneTask());
  }
  const hostcalls::Hook fault("VisitSequence", [] { throw std::runtime_error("the next build"); });
  host.Settle();
  EXPECT_EQ(GetNames(tree->GetFullList()), (Names{"before", "Gap", "after"}));
  ASSERT_EQ(GetShownNames(), (Names{"before", "after"}));
  EXPECT_EQ(tree->GetFilteredList()[0].index, 0U);
  EXPECT_EQ(tree->GetFilteredList()[1].index, 2U);
  EXPECT_EQ(host.TakeFailures().size(), 1U);
}

TEST_F(Refresh, ABuildLocksForTheSequenceTheFlagTheGroupsAndTheHandOverOnly) {
  ShowSequence(MakeClips("A", 2));
  tree->RefreshDataListsAndTreeViewAsync();
  const hostcalls::Recording recording;
  ASSERT_TRUE(RunOneTask());
  EXPECT_EQ(recording.GetCalls({"Lock", "Unlock", "VisitSequence"}),
            (Calls{"Lock(null, 60000)", "Unlock()", "VisitSequence()", "Lock(null, 60000)", "Unlock()",
                   "Lock(null, 60000)", "Unlock()", "Lock(null, 60000)", "Unlock()"}));
}

TEST_F(Refresh, AQueuedBuildIndexesTheNewestSequence) {
  const auto before = AddSequence(MakeClips("Old", 1));
  const auto after = AddSequence(MakeClips("New", 1));
  host.Settle();
  tree->SetSequence(before);
  tree->SetSequence(after);
  ASSERT_TRUE(RunOneTask());
  ASSERT_TRUE(RunOneTask());
  ASSERT_TRUE(RunOneTask());
  ASSERT_TRUE(RunOneMainStep());
  EXPECT_EQ(GetShownNames(), Names{"New1"});
}

TEST_F(Refresh, ABuildOfTheSequenceBeforeIsShownUntilTheNewOnesIsDone) {
  const auto before = AddSequence(MakeClips("Old", 1));
  const auto after = AddSequence(MakeClips("New", 1));
  host.Settle();
  tree->SetSequence(before);
  ASSERT_TRUE(RunOneTask());
  tree->SetSequence(after);
  ASSERT_TRUE(RunOneTask());
  ASSERT_TRUE(RunOneMainStep());
  EXPECT_EQ(GetShownNames(), Names{"Old1"});
  host.Settle();
  EXPECT_EQ(GetShownNames(), Names{"New1"});
}

TEST_F(Refresh, EachRefreshRebuildsEveryRow) {
  ShowSequence(MakeClips("A", 2));
  tree->RefreshDataListsAndTreeViewAsync();
  Replace(sequence, MakeClips("B", 3));
  host.Settle();
  EXPECT_EQ(GetNames(tree->GetFullList()), (Names{"B1", "B2", "B3"}));
  EXPECT_EQ(GetShownNames(), (Names{"B1", "B2", "B3"}));
}

TEST_F(Refresh, NoSequenceEmptiesTheTableAndScrollsNowhere) {
  ShowSequence(MakeClips("A", 3));
  const hostcalls::Recording recording;
  tree->SetSequence({});
  host.Settle();
  EXPECT_TRUE(tree->GetFullList().empty());
  EXPECT_TRUE(tree->GetFilteredList().empty());
  EXPECT_EQ(tree->CountRows(), 0U);
  EXPECT_EQ(recording.Count("ScrollRowIntoView"), 0U);
  EXPECT_EQ(recording.Count("RemoveAllRows"), 1U);
}

TEST_F(Refresh, AnEmptySequenceEmptiesTheTable) {
  ShowSequence(MakeClips("A", 3));
  ShowSequence(drafts::MakeSequence("Empty"));
  EXPECT_EQ(tree->CountRows(), 0U);
  EXPECT_TRUE(tree->GetFullList().empty());
}

// Showing

TEST_F(Refresh, PopulatingRemovesAppendsLaysOutOnceAndScrolls) {
  const hostcalls::Recording recording;
  ShowSequence(MakeClips("A", 3));
  EXPECT_EQ(recording.GetCalls(
                {"RemoveAllRows", "CreateAndAppendRow", "LayoutAfterAppendRow", "ScrollRowIntoView"}),
            (Calls{"RemoveAllRows(true, true)", "CreateAndAppendRow(null, true, true)",
                   "CreateAndAppendRow(null, true, true)", "CreateAndAppendRow(null, true, true)",
                   "LayoutAfterAppendRow()", "ScrollRowIntoView(0, true, true, true)"}));
}

TEST_F(Refresh, TheSameRowNumberStaysAtTheTop) {
  tree->UI_SetBounds({0, 0, 400, 20 + 5 * kRowHeight});
  ShowSequence(MakeClips("A", 40));
  tree->ScrollRowIntoView(tree->GetRow(12), true, true, true);
  ASSERT_EQ(tree->GetRowIndex(tree->GetVisibleRows().front()), 12U);
  auto draft = MakeClips("A", 40);
  auto& items = draft.tracks.front().items;
  items.erase(items.begin(), items.begin() + 5);
  tree->RefreshDataListsAndTreeViewAsync();
  Replace(sequence, std::move(draft));
  const hostcalls::Recording recording;
  host.Settle();
  EXPECT_EQ(recording.GetCalls({"ScrollRowIntoView"}),
            Calls{"ScrollRowIntoView(12, true, true, true)"});
  EXPECT_EQ(tree->GetRowIndex(tree->GetVisibleRows().front()), 12U);
  EXPECT_EQ(tree->GetFilteredList()[12].name, "A18") << "another clip than before";
}

TEST_F(Refresh, ScrollsNowhereWhenTheTopRowsNumberIsGone) {
  tree->UI_SetBounds({0, 0, 400, 20 + 5 * kRowHeight});
  ShowSequence(MakeClips("A", 40));
  tree->ScrollRowIntoView(tree->GetRow(30), true, true, true);
  const hostcalls::Recording recording;
  tree->RefreshDataListsAndTreeViewAsync();
  Replace(sequence, MakeClips("A", 10));
  host.Settle();
  EXPECT_EQ(recording.Count("ScrollRowIntoView"), 0U);
}

TEST_F(Refresh, BothListsAreTakenInOneHoldOfTheMutex) {
  tree->SetSequence(AddSequence(MakeClips("A", 2)));
  host.GetPool().RunUntilEmpty();
  const hostcalls::Recording recording;
  ASSERT_TRUE(RunOneMainStep());
  const auto calls = recording.GetCalls({"Lock", "Unlock", "RemoveAllRows"});
  EXPECT_EQ(calls, (Calls{"Lock(null, 60000)", "Unlock()", "RemoveAllRows(true, true)"}))
      << "and populating runs without it";
}

TEST_F(Refresh, OldRowsDieOnThePool) {
  ShowSequence(MakeClips("A", 2));
  tree->RefreshDataListsAndTreeViewAsync();
  host.GetPool().RunUntilEmpty();
  ASSERT_TRUE(RunOneMainStep());
  EXPECT_EQ(host.GetPool().CountWaiting(), 1U) << "the task that holds them";
}

TEST_F(Refresh, OldRowsDieOnTheSpotWhenThePoolTakesNoTask) {
  ShowSequence(MakeClips("A", 2));
  tree->RefreshDataListsAndTreeViewAsync();
  host.GetPool().RunUntilEmpty();
  const hostcalls::Hook fault("GetCPUBoundExecutor", [] { throw std::bad_alloc(); });
  ASSERT_TRUE(RunOneMainStep());
  EXPECT_EQ(tree->CountRows(), 2U);
  EXPECT_TRUE(host.TakeFailures().empty());
}

}  // namespace
}  // namespace Vantrel
