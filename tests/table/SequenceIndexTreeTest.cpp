#include "table/SequenceIndexTree.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

#include "host/qelcore/Exceptions.h"
#include "standalone/runtime/StationRegistry.h"
#include "support/HostCalls.h"
#include "support/SteppedHost.h"
#include "table/ScheduleWatch.h"

namespace Vantrel {
namespace {

using qelcore::Ref;
using qelcore::messaging::StationID;
using Calls = std::vector<std::string>;

class Tree : public testing::Test {
 protected:
  static Ref<SequenceIndexTree> MakeTree() { return Ref(new SequenceIndexTree({}, 0, 18.0F)); }

  bool IsRegistered(const StationID& station) {
    return host->GetRuntime().GetStations().IsRegistered(station);
  }

  SteppedHost host;
};

TEST_F(Tree, HasAStationOfItsOwnAsLongAsItLives) {
  auto tree = MakeTree();
  const StationID station = tree->GetStationID();
  EXPECT_TRUE(IsRegistered(station));
  EXPECT_FALSE(MakeTree()->GetStationID() == station);
  tree.Reset();
  EXPECT_FALSE(IsRegistered(station));
}

TEST_F(Tree, BuildsOnASerialExecutorOverThePool) {
  const ScheduleWatch watch;
  const auto tree = MakeTree();
  EXPECT_EQ(watch.baseExecutor, host->GetRuntime().GetCPUExecutor());
  EXPECT_EQ(watch.concurrency, 1);
}

TEST_F(Tree, WantsKeyboardFocusAndSetsUpItsHeaderInOrder) {
  const hostcalls::Recording recording;
  const auto tree = MakeTree();
  auto calls =
      recording.GetCalls({"SetWantsKeyboardFocus", "SetSupportMultipleSelections", "SetHeaderRow",
                          "AppendColumn", "SetAllowColumnMovingByUser", "ShowSortIndicator"});
  std::erase_if(calls, [](const std::string& call) {
    return call.starts_with("AppendColumn") && !call.ends_with("100000)");
  });
  EXPECT_EQ(calls, (Calls{"SetWantsKeyboardFocus(true)", "SetSupportMultipleSelections(true)",
                          "SetHeaderRow()", "AppendColumn(#, 100000)",
                          "SetAllowColumnMovingByUser(true, false)", "ShowSortIndicator(false)"}));
}

TEST_F(Tree, StartsWithoutSequenceRowsAndWork) {
  const auto tree = MakeTree();
  EXPECT_FALSE(tree->GetSequence());
  EXPECT_TRUE(tree->GetFullList().empty());
  EXPECT_TRUE(tree->GetFilteredList().empty());
  EXPECT_EQ(tree->CountRows(), 0U);
  EXPECT_EQ(host.GetPool().CountWaiting(), 0U);
}

TEST_F(Tree, LeavesNoStationWhenItsExecutorCantBeMade) {
  const hostcalls::Recording recording;
  const hostcalls::Hook fault("CreateQueueBasedSubExecutor", [] { throw std::bad_alloc(); });
  EXPECT_THROW(MakeTree(), std::bad_alloc);
  EXPECT_EQ(recording.GetCalls({"RegisterStation", "DisposeStation"}),
            (Calls{"RegisterStation()", "DisposeStation()"}));
}

TEST_F(Tree, DisposesOfNoStationThatItCouldNotRegister) {
  const hostcalls::Recording recording;
  const hostcalls::Hook fault("RegisterStation", [] { throw std::bad_alloc(); });
  EXPECT_THROW(MakeTree(), std::bad_alloc);
  EXPECT_EQ(recording.Count("DisposeStation"), 0U);
  EXPECT_EQ(recording.Count("CreateQueueBasedSubExecutor"), 0U);
}

TEST_F(Tree, LeavesNoStationWhenItsHeaderCantBeSetUp) {
  const hostcalls::Recording recording;
  const hostcalls::Hook fault("ShowSortIndicator", [] { throw std::bad_alloc(); });
  EXPECT_THROW(MakeTree(), std::bad_alloc);
  EXPECT_EQ(recording.Count("DisposeStation"), 1U);
}

class CountingListener final : public qelcore::messaging::Listener {
 public:
  void ReceiveMessage(const qelcore::messaging::Message&) override {}
};

TEST_F(Tree, NeverKeepsItsOwnerAlive) {
  auto owner = std::make_shared<CountingListener>();
  const std::weak_ptr<CountingListener> watched = owner;
  const Ref tree(new SequenceIndexTree(owner, 0, 18.0F));
  owner.reset();
  EXPECT_TRUE(watched.expired());
}

}  // namespace
}  // namespace Vantrel
