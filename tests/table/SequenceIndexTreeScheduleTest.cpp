#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "standalone/runtime/StationRegistry.h"
#include "support/Schedules.h"
#include "table/SelectionFixture.h"

namespace Vantrel {
namespace {

using qelcore::Ref;

/// Every order in which requests, builds, their continuations and main-thread steps can happen, on one
/// thread. What a build does is one step, but for what a test lets happen inside it.
class EverySchedule : public SelectionFixture {
 protected:
  using Request = std::function<void()>;

  /// Runs `run` once for every way its choices can go, each time with a table of its own that shows
  /// nothing yet.
  template <typename Run>
  void ForEachSchedule(Run run) {
    do {
      nextRequest = 0;
      tree = Ref(new SequenceIndexTree(owner, 0, kRowHeight));
      ShowRows(kVisibleRows);
      host.GetPool().RunUntilEmpty();
      run();
      tree.Reset();
      host.Settle();
      if (HasFailure()) {
        ADD_FAILURE() << "with the choices " << testing::PrintToString(schedules.GetChoices());
        return;
      }
    } while (schedules.Next());
    RecordProperty("schedules", std::to_string(schedules.CountRuns()));
  }

  /// Requests edits of a sequence, each with its refresh: two clips, three, up to `lastCount`.
  void RequestEdits(const Ref<BE::ISequence>& edited, int lastCount) {
    for (int count = 2; count <= lastCount; ++count) {
      requests.emplace_back([this, edited, count] {
        Replace(edited, MakeClips("A", count));
        tree->RefreshDataListsAndTreeViewAsync();
      });
    }
  }
  /// Lets the requests happen in their order, and everything that follows from them in any.
  void RunRequests() {
    for (auto steps = GetSteps(); !steps.empty(); steps = GetSteps()) {
      steps[schedules.Choose(steps.size())]();
      ExpectOneBuild();
      if (HasFailure()) return;
    }
  }
  /// What can happen now.
  std::vector<std::function<void()>> GetSteps() {
    std::vector<std::function<void()>> steps;
    if (nextRequest < requests.size()) steps.emplace_back([this] { RequestNext(); });
    if (host.GetPool().CountWaiting() > 0) {
      steps.emplace_back([this] { Run([this] { host.GetPool().RunOne(); }); });
    }
    if (host.GetMainQueue().CountWaiting() > 0) {
      steps.emplace_back([this] { Run([this] { RunOneMainStep(); }); });
    }
    return steps;
  }
  template <typename Step>
  void Run(Step step) {
    isRunning = true;
    step();
    isRunning = false;
  }
  void RequestNext() { requests[nextRequest++](); }

  /// The table, the full and the filtered list are of one build.
  void ExpectOneBuild() {
    if (!tree) return;
    const TrackItemDataList& full = tree->GetFullList();
    const TrackItemDataList& filtered = tree->GetFilteredList();
    EXPECT_EQ(tree->CountRows(), filtered.size());
    ASSERT_LE(filtered.size(), full.size());
    for (const TrackItemRowData& row : filtered) {
      ASSERT_LT(row.index, full.size());
      EXPECT_EQ(row.name, full[row.index].name);
      EXPECT_EQ(row.trackItem, full[row.index].trackItem);
    }
    for (const TrackItemRowData& row : full) {
      EXPECT_EQ(row.sequence, full.front().sequence) << "rows of two sequences";
    }
  }

  Ref<BE::ISequence> AddOpened(standalone::SequenceDraft draft) {
    const auto added = AddSequence(std::move(draft));
    host->GetProject().ActivateSequence(added);
    host.Settle();
    return added;
  }

  Schedules schedules;
  std::vector<Request> requests;
  std::size_t nextRequest = 0;
  /// Within a pool task or a main-thread step.
  bool isRunning = false;
};

TEST_F(EverySchedule, OfThreeSequencesShowsTheLast) {
  const auto first = AddOpened(MakeClips("A", 1));
  const auto second = AddOpened(MakeClips("B", 2));
  const auto third = AddOpened(MakeClips("C", 3));
  for (const auto& shown : {first, second, third}) {
    requests.emplace_back([this, shown] { tree->SetSequence(shown); });
  }
  ForEachSchedule([&] {
    RunRequests();
    EXPECT_EQ(GetShownNames(), (Names{"C1", "C2", "C3"}));
    EXPECT_EQ(GetSelectedNames(), Names{"C1"}) << "under the playhead";
  });
}

TEST_F(EverySchedule, OfASequenceAndNoneShowsNone) {
  const auto shown = AddOpened(MakeClips("A", 3));
  requests.emplace_back([&] { tree->SetSequence(shown); });
  requests.emplace_back([&] { tree->SetSequence({}); });
  ForEachSchedule([&] {
    RunRequests();
    EXPECT_TRUE(tree->GetFullList().empty());
    EXPECT_EQ(tree->CountRows(), 0U);
  });
}

TEST_F(EverySchedule, OfThreeSettersShowsWhatAllOfThemAsked) {
  const auto shown = AddOpened(MakeClipGapClip());
  requests.emplace_back([&] { tree->SetSequence(shown); });
  requests.emplace_back([&] { tree->SetSearchText(qelcore::UTF8String("after")); });
  requests.emplace_back([&] { tree->SetOptions(KeepingGaps()); });
  ForEachSchedule([&] {
    RunRequests();
    EXPECT_EQ(GetNames(tree->GetFullList()), (Names{"before", "Gap", "after"}));
    EXPECT_EQ(GetShownNames(), (Names{"Gap", "after"}));
  });
}

TEST_F(EverySchedule, OfThreeEditsShowsTheLastAndBuildsEach) {
  const auto edited = AddOpened(MakeClips("A", 1));
  RequestEdits(edited, 4);
  int visits = 0;
  const hostcalls::Hook count("VisitSequence", [&] { ++visits; });
  ForEachSchedule([&] {
    Replace(edited, MakeClips("A", 1));
    tree->SetSequence(edited);
    host.Settle();
    visits = 0;
    RunRequests();
    EXPECT_EQ(visits, 3) << "none is left out";
    EXPECT_EQ(GetShownNames(), (Names{"A1", "A2", "A3", "A4"}));
  });
}

TEST_F(EverySchedule, AfterAFailedBuildShowsWhatTheLastGoodOneMade) {
  const auto edited = AddOpened(MakeClips("A", 1));
  RequestEdits(edited, 4);
  ForEachSchedule([&] {
    Replace(edited, MakeClips("A", 1));
    tree->SetSequence(edited);
    host.Settle();
    const std::size_t failing = schedules.Choose(3);
    std::size_t visits = 0;
    std::size_t requestedAtLastVisit = 0;
    {
      const hostcalls::Hook fault("VisitSequence", [&] {
        if (visits++ == failing) throw std::runtime_error("broken clip");
        requestedAtLastVisit = nextRequest;
      });
      RunRequests();
    }
    EXPECT_EQ(GetShownNames().size(), requestedAtLastVisit + 1);
    EXPECT_EQ(host.TakeFailures().size(), 1U);
    tree->RefreshDataListsAndTreeViewAsync();
    host.Settle();
    EXPECT_EQ(GetShownNames().size(), 4U) << "the next one starts over";
  });
}

TEST_F(EverySchedule, ABuildThatFailsAtAnyOfItsLocksChangesNothing) {
  const auto edited = AddOpened(MakeClips("A", 1));
  ForEachSchedule([&] {
    Replace(edited, MakeClips("A", 1));
    tree->SetSequence(edited);
    host.Settle();
    Replace(edited, MakeClips("A", 2));
    host.Settle();
    tree->RefreshDataListsAndTreeViewAsync();
    const std::size_t failing = schedules.Choose(4);
    std::size_t locks = 0;
    {
      const hostcalls::Hook fault("Lock", [&] {
        if (locks++ == failing) throw std::runtime_error("not to be had");
      });
      RunOneTask();
    }
    host.Settle();
    EXPECT_EQ(locks, failing + 1);
    EXPECT_EQ(GetShownNames(), Names{"A1"});
    EXPECT_EQ(host.TakeFailures().size(), 1U);
  });
}

// A build takes the data mutex four times, and nothing else of what it does can be seen from outside:
// so this is every state of a build in which something can change.
TEST_F(EverySchedule, WhateverChangesDuringABuildIsShownAtTheEnd) {
  const auto first = AddOpened(MakeClips("A", 2));
  const auto second = AddOpened(MakeClipGapClip());
  requests.emplace_back([&] { tree->SetSequence(second); });
  requests.emplace_back([&] { tree->SetOptions(KeepingGaps()); });
  requests.emplace_back([&] { tree->SetSearchText(qelcore::UTF8String("before")); });
  ForEachSchedule([&] {
    tree->SetSequence(first);
    bool isInside = false;
    const auto change = [&] {
      if (isInside || nextRequest == requests.size()) return;
      isInside = true;
      if (schedules.ChooseWhether()) RequestNext();
      isInside = false;
    };
    {
      const hostcalls::Hook atLock("Lock", change);
      const hostcalls::Hook atVisit("VisitSequence", change);
      RunOneTask();
    }
    while (nextRequest < requests.size()) RequestNext();
    RunRequests();
    EXPECT_EQ(GetNames(tree->GetFullList()), (Names{"before", "Gap", "after"}));
    EXPECT_EQ(GetShownNames(), (Names{"before", "Gap"}));
  });
}

TEST_F(EverySchedule, MainThreadStepsDuringABuildTakeNothingOfIt) {
  const auto edited = AddOpened(MakeClips("A", 1));
  RequestEdits(edited, 3);
  ForEachSchedule([&] {
    Replace(edited, MakeClips("A", 1));
    tree->SetSequence(edited);
    bool isInside = false;
    const auto step = [&] {
      if (isInside || host.GetMainQueue().CountWaiting() == 0) return;
      isInside = true;
      if (schedules.ChooseWhether()) {
        RunOneMainStep();
        ExpectOneBuild();
      }
      isInside = false;
    };
    const hostcalls::Hook atVisit("VisitSequence", step);
    RunRequests();
    EXPECT_EQ(GetShownNames(), (Names{"A1", "A2", "A3"}));
  });
}

// A listener may run an event loop of its own with every message that the table sends.
TEST_F(EverySchedule, NestedEventLoopsLeaveRowsListsAndCountsInStep) {
  const auto edited = AddOpened(MakeClips("A", 1));
  RequestEdits(edited, 3);
  bool isNested = false;
  const auto nesting = std::make_shared<Ear>([&](const auto&) {
    if (std::exchange(isNested, true)) return;
    for (auto steps = GetSteps(); !steps.empty(); steps = GetSteps()) {
      const std::size_t chosen = schedules.Choose(steps.size() + 1);
      if (chosen == steps.size()) break;
      steps[chosen]();
    }
    isNested = false;
  });
  ForEachSchedule([&] {
    Replace(edited, MakeClips("A", 1));
    host.Settle();
    tree->SetSequence(edited);
    host.Settle();
    // The panel first: it hears what it hears in the order in which it was said.
    qelcore::messaging::AddWeakPtrListener(tree->GetStationID(), ear);
    qelcore::messaging::AddWeakPtrListener(tree->GetStationID(), nesting);
    RunRequests();
    EXPECT_EQ(GetShownNames(), (Names{"A1", "A2", "A3"}));
    EXPECT_EQ(GetSelectedNames(), Names{"A1"});
    EXPECT_EQ(heard.back(), "counts 1/3");
  });
}

TEST_F(EverySchedule, APanelClosedAtAnyTimeIsGoneAtTheEndAndNothingFails) {
  const auto shown = AddOpened(MakeClips("A", 2));
  requests.emplace_back([&] { tree->SetSequence(shown); });
  requests.emplace_back([&] { tree->SetOptions(KeepingGaps()); });
  requests.emplace_back([&] { tree.Reset(); });
  ForEachSchedule([&] {
    const auto station = tree->GetStationID();
    const auto close = [&] {
      if (isRunning && nextRequest + 1 == requests.size() && schedules.ChooseWhether()) RequestNext();
    };
    const hostcalls::Hook inside("VisitSequence", close);
    const hostcalls::Hook atLock("Lock", close);
    const hostcalls::Hook atRemoval("RemoveAllRows", close);
    const hostcalls::Hook atEnd("BroadcastMessageOnMainThread", close);
    RunRequests();
    EXPECT_FALSE(host->GetRuntime().GetStations().IsRegistered(station));
    EXPECT_TRUE(host.TakeFailures().empty());
  });
}

}  // namespace
}  // namespace Vantrel
