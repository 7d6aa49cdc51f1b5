#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <thread>

#include "host/qelcore/Threads.h"
#include "standalone/runtime/StationRegistry.h"
#include "table/RefreshFixture.h"

namespace Vantrel {
namespace {

using RefreshAndClose = RefreshFixture;
using qelcore::Ref;

TEST_F(RefreshAndClose, AClosedTableWaitsForNothingAndItsQueuedBuildDoesNothing) {
  sequence = AddSequence(MakeClips("A", 2));
  host.Settle();
  tree->SetSequence(sequence);
  tree.Reset();
  EXPECT_EQ(host.GetPool().CountWaiting(), 1U);
  const hostcalls::Recording recording;
  host.Settle();
  EXPECT_EQ(recording.Count("VisitSequence"), 0U);
  EXPECT_EQ(recording.Count("CallFromMainThread"), 0U);
  EXPECT_TRUE(host.TakeFailures().empty());
}

TEST_F(RefreshAndClose, AMainThreadStepOfAClosedTableDoesNothing) {
  tree->SetSequence(AddSequence(MakeClips("A", 2)));
  host.GetPool().RunUntilEmpty();
  tree.Reset();
  const hostcalls::Recording recording;
  ASSERT_TRUE(RunOneMainStep());
  EXPECT_EQ(recording.Count("RemoveAllRows"), 0U);
}

TEST_F(RefreshAndClose, TheMainThreadStepHoldsTheTableUntilItEnds) {
  tree->SetSequence(AddSequence(MakeClips("A", 3)));
  host.GetPool().RunUntilEmpty();
  const auto station = tree->GetStationID();
  bool wasAliveAtTheEnd = false;
  const hostcalls::Hook close("RemoveAllRows", [&] { tree.Reset(); });
  const hostcalls::Hook look("ScrollRowIntoView", [&] {
    wasAliveAtTheEnd = host->GetRuntime().GetStations().IsRegistered(station);
  });
  ASSERT_TRUE(RunOneMainStep());
  EXPECT_TRUE(wasAliveAtTheEnd);
  EXPECT_FALSE(host->GetRuntime().GetStations().IsRegistered(station));
}

TEST_F(RefreshAndClose, ATableClosedBetweenBuildAndContinuationPostsNothing) {
  sequence = AddSequence(MakeClips("A", 2));
  host.Settle();
  tree->SetSequence(sequence);
  ASSERT_TRUE(RunOneTask());
  tree.Reset();
  const hostcalls::Recording recording;
  host.Settle();
  EXPECT_EQ(recording.Count("CallFromMainThread"), 0U);
}

TEST_F(RefreshAndClose, ATableClosedDuringItsBuildIsDestroyedOnceTheBuildIsDone) {
  sequence = AddSequence(MakeClips("A", 2));
  host.Settle();
  tree->SetSequence(sequence);
  const auto station = tree->GetStationID();
  const hostcalls::Hook hook("VisitSequence", [&] { tree.Reset(); });
  ASSERT_TRUE(RunOneTask());
  host.Settle();
  EXPECT_FALSE(host->GetRuntime().GetStations().IsRegistered(station));
}

/// With the host's own pool.
class RefreshOnPool : public testing::Test {
 protected:
  standalone::StandaloneHost host;
  Ref<SequenceIndexTree> tree = Ref(new SequenceIndexTree({}, 0, 18.0F));
};

TEST_F(RefreshOnPool, NoPartOfABuildRunsOnTheMainThread) {
  std::atomic<int> visitsOnMain = 0;
  std::atomic<int> visits = 0;
  const hostcalls::Hook hook("VisitSequence", [&] {
    ++visits;
    if (qelcore::threads::CurrentThreadIsMainThread()) ++visitsOnMain;
  });
  tree->SetSequence(AddSequence(MakeClips("A", 5)));
  host.GetRuntime().Drain();
  EXPECT_EQ(visits, 1);
  EXPECT_EQ(visitsOnMain, 0);
  EXPECT_EQ(tree->CountRows(), 5U);
}

TEST_F(RefreshOnPool, BuildsOfOneTableNeverOverlap) {
  std::atomic<int> running = 0;
  std::atomic<bool> didOverlap = false;
  const hostcalls::Hook start("VisitSequence", [&] {
    if (running.fetch_add(1) != 0) didOverlap = true;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    running.fetch_sub(1);
  });
  tree->SetSequence(AddSequence(MakeClips("A", 5)));
  for (int i = 0; i < 20; ++i) tree->RefreshDataListsAndTreeViewAsync();
  host.GetRuntime().Drain();
  EXPECT_FALSE(didOverlap);
}

TEST_F(RefreshOnPool, ATableWhoseLastReferenceDiesOnAWorkerIsDestroyedOnTheMainThread) {
  std::promise<void> isVisiting;
  std::promise<void> mayGoOn;
  std::promise<void> isBuilt;
  const hostcalls::Hook visit("VisitSequence", [&] {
    isVisiting.set_value();
    mayGoOn.get_future().wait();
  });
  std::thread::id disposedOn;
  const hostcalls::Hook dispose("DisposeStation", [&] { disposedOn = std::this_thread::get_id(); });
  tree->SetSequence(AddSequence(MakeClips("A", 2)));
  isVisiting.get_future().wait();
  tree.Reset();
  EXPECT_EQ(disposedOn, std::thread::id()) << "the build still holds it";
  mayGoOn.set_value();
  host.GetRuntime().Drain();
  EXPECT_EQ(disposedOn, std::this_thread::get_id());
}

}  // namespace
}  // namespace Vantrel
