#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "host/qelcore/Exceptions.h"
#include "host/qelcore/Future.h"
#include "host/qelcore/Threads.h"
#include "table/RefreshFixture.h"
#include "table/ScheduleWatch.h"

namespace Vantrel {
namespace {

using RefreshFailure = RefreshFixture;

TEST_F(RefreshFailure, AFailedBuildKeepsTheRowsAndReachesTheLogOnce) {
  ShowSequence(MakeClips("A", 3));
  {
    const hostcalls::Hook fault("VisitSequence",
                                [] { throw std::runtime_error("the disk is on fire"); });
    tree->RefreshDataListsAndTreeViewAsync();
    const hostcalls::Recording recording;
    host.Settle();
    EXPECT_EQ(recording.Count("CallFromMainThread"), 1U)
        << "the main-thread step is posted all the same";
    EXPECT_EQ(recording.Count("RemoveAllRows"), 0U);
  }
  EXPECT_EQ(GetShownNames(), (Names{"A1", "A2", "A3"}));
  EXPECT_EQ(tree->CountRows(), 3U);
  const auto failures = host.TakeFailures();
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_NE(failures.front().find("the disk is on fire"), std::string::npos);
}

TEST_F(RefreshFailure, AfterAFailedBuildTheNextOneStartsOver) {
  ShowSequence(MakeClips("A", 3));
  {
    const hostcalls::Hook fault("VisitSequence", [] { throw std::runtime_error("once"); });
    tree->RefreshDataListsAndTreeViewAsync();
    host.Settle();
  }
  host.TakeFailures();
  tree->RefreshDataListsAndTreeViewAsync();
  Replace(sequence, MakeClips("B", 1));
  host.Settle();
  EXPECT_EQ(GetShownNames(), Names{"B1"});
  EXPECT_TRUE(host.TakeFailures().empty());
}

TEST_F(RefreshFailure, AFailedBuildDoesNotStrandTheListsOfTheOneBefore) {
  ShowSequence(MakeClips("A", 1));
  Replace(sequence, MakeClips("B", 2));
  tree->RefreshDataListsAndTreeViewAsync();
  ASSERT_TRUE(RunOneTask());
  const hostcalls::Hook fault("VisitSequence", [] { throw std::runtime_error("second"); });
  tree->RefreshDataListsAndTreeViewAsync();
  host.Settle();
  EXPECT_EQ(GetShownNames(), (Names{"B1", "B2"}));
  EXPECT_EQ(host.TakeFailures().size(), 1U);
}

class CarryingFailure final : public std::runtime_error {
 public:
  explicit CarryingFailure(std::shared_ptr<int> cargo)
      : std::runtime_error("with cargo"), cargo(std::move(cargo)) {}

 private:
  const std::shared_ptr<int> cargo;
};

TEST_F(RefreshFailure, TheLastOutcomeIsKeptAndLetGoOfBeforeTheNextBuildIsScheduled) {
  ShowSequence(MakeClips("A", 1));
  std::weak_ptr<int> watched;
  {
    const hostcalls::Hook fault("VisitSequence", [&] {
      auto cargo = std::make_shared<int>();
      watched = cargo;
      throw CarryingFailure(std::move(cargo));
    });
    tree->RefreshDataListsAndTreeViewAsync();
    host.Settle();
  }
  EXPECT_EQ(host.TakeFailures().size(), 1U);
  EXPECT_FALSE(watched.expired()) << "the future of the build holds its failure";
  bool wasLetGo = false;
  const hostcalls::Hook look("Schedule", [&] { wasLetGo = watched.expired(); });
  tree->RefreshDataListsAndTreeViewAsync();
  EXPECT_TRUE(wasLetGo);
}

TEST_F(RefreshFailure, AFailureAfterTheVisitStoresNoListEither) {
  ShowSequence(MakeClips("A", 3));
  Replace(sequence, MakeClips("B", 2));
  tree->RefreshDataListsAndTreeViewAsync();
  int locks = 0;
  {
    const hostcalls::Hook fault("Lock", [&] {
      if (++locks == 4) throw qelcore::config::lock_timeout_exception("");
    });
    ASSERT_TRUE(RunOneTask());
  }
  EXPECT_EQ(locks, 4) << "the build's last lock is the one for storing";
  host.Settle();
  EXPECT_EQ(GetShownNames(), (Names{"A1", "A2", "A3"}));
  EXPECT_EQ(host.TakeFailures().size(), 1U);
}

TEST_F(RefreshFailure, AnotherSequencesRowsStayWhenTheNewOnesBuildFails) {
  ShowSequence(MakeClips("A", 2));
  const hostcalls::Hook fault("VisitSequence", [] { throw std::runtime_error("broken clip"); });
  ShowSequence(MakeClips("B", 2));
  EXPECT_EQ(GetShownNames(), (Names{"A1", "A2"}));
  EXPECT_EQ(tree->GetSequence(), sequence);
  host.TakeFailures();
}

/// Drops what it is given, which cancels the future.
class DroppingExecutor final : public qelcore::threads::AsyncExecutor {
 public:
  void Submit(std::function<void()>) override {}
};

TEST_F(RefreshFailure, TheContinuationSurvivesACancelledBuild) {
  ShowSequence(MakeClips("A", 2));
  {
    ScheduleWatch watch;
    watch.executorInstead = std::make_shared<DroppingExecutor>();
    tree->RefreshDataListsAndTreeViewAsync();
  }
  const hostcalls::Recording recording;
  host.Settle();
  EXPECT_EQ(recording.Count("CallFromMainThread"), 1U);
  EXPECT_EQ(recording.Count("RemoveAllRows"), 0U);
  EXPECT_EQ(GetShownNames(), (Names{"A1", "A2"}));
  const auto failures = host.TakeFailures();
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_NE(failures.front().find(qelcore::async::kFutureIsCancelled), std::string::npos);
}

TEST_F(RefreshFailure, ASetterThatGetsNoLockChangesNothing) {
  ShowSequence(MakeClipGapClip());
  {
    const hostcalls::Hook fault("Lock", [] { throw qelcore::config::lock_timeout_exception(""); });
    EXPECT_THROW(tree->SetOptions(KeepingGaps()), qelcore::config::lock_timeout_exception);
    EXPECT_THROW(tree->SetSequence({}), qelcore::config::lock_timeout_exception);
  }
  EXPECT_EQ(host.GetPool().CountWaiting(), 0U);
  EXPECT_EQ(tree->GetSequence(), sequence);
  tree->RefreshDataListsAndTreeViewAsync();
  host.Settle();
  EXPECT_EQ(GetShownNames(), (Names{"before", "after"}));
}

}  // namespace
}  // namespace Vantrel
