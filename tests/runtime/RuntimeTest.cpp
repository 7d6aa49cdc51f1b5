#include "standalone/runtime/Runtime.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>

#include "host/qelcore/Future.h"
#include "host/qelcore/Messaging.h"
#include "standalone/runtime/StationRegistry.h"
#include "standalone/runtime/SteppedExecutor.h"

namespace {

using namespace std::chrono_literals;
using qelcore::threads::CallFromMainThread;
using qelcore::threads::GetCPUBoundExecutor;
using standalone::Runtime;

TEST(Runtime, IsFoundWhileItExists) {
  EXPECT_FALSE(Runtime::Exists());
  {
    Runtime runtime;
    EXPECT_TRUE(Runtime::Exists());
    EXPECT_EQ(&Runtime::Current(), &runtime);
  }
  EXPECT_FALSE(Runtime::Exists());
}

TEST(Runtime, StopsTheProgramWhenItIsMissingOrThereTwice) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_DEATH(Runtime::Current(), "Runtime does not exist");
  Runtime runtime;
  EXPECT_DEATH(Runtime(), "Runtime exists already");
}

TEST(Runtime, ItsMainThreadIsTheOneThatBuiltIt) {
  EXPECT_FALSE(qelcore::threads::CurrentThreadIsMainThread());
  Runtime runtime;
  EXPECT_TRUE(runtime.IsMainThread());
  EXPECT_TRUE(qelcore::threads::CurrentThreadIsMainThread());
  std::thread([&runtime] { EXPECT_FALSE(runtime.IsMainThread()); }).join();
}

TEST(MainThreadCheck, NamesTheOperationAndStops) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  Runtime runtime;
  standalone::AssertMainThread("SelectRow");
  EXPECT_DEATH(std::thread([] { standalone::AssertMainThread("SelectRow"); }).join(),
               "^SelectRow was called off the main thread");
}

TEST(MainThreadCheck, ChecksNothingWithoutARuntime) {
  std::thread([] { standalone::AssertMainThread("SelectRow"); }).join();
}

TEST(Runtime, AStandInTakesThePlaceOfThePool) {
  const auto stepped = std::make_shared<standalone::SteppedExecutor>();
  Runtime runtime(Runtime::Setup{.cpuExecutor = stepped});
  EXPECT_EQ(GetCPUBoundExecutor(), stepped);
  EXPECT_EQ(qelcore::async::GetDefaultExecutor(), stepped);
  bool ran = false;
  stepped->Submit([&ran] { ran = true; });
  runtime.Drain();
  EXPECT_FALSE(ran) << "a test steps its own executor";
}

/// Passes itself between pool and main thread.
void BounceBetweenThreads(std::atomic<int>& left) {
  if (--left <= 0) return;
  GetCPUBoundExecutor()->Submit(
      [&left] { CallFromMainThread([&left] { BounceBetweenThreads(left); }, 0, true); });
}

TEST(Draining, GoesOnUntilPoolAndQueueAreBothEmpty) {
  Runtime runtime;
  std::atomic<int> left = 200;
  BounceBetweenThreads(left);
  runtime.Drain();
  EXPECT_EQ(left, 0);
}

TEST(Draining, WithoutThreadsGoesOnUntilPoolAndQueueAreBothEmpty) {
  Runtime runtime(Runtime::Setup{.poolThreads = 0});
  std::atomic<int> left = 200;
  BounceBetweenThreads(left);
  runtime.Drain();
  EXPECT_EQ(left, 0);
}

TEST(Draining, IncludesDelayedFunctions) {
  Runtime runtime;
  bool ran = false;
  CallFromMainThread(
      [&ran] {
        GetCPUBoundExecutor()->Submit([&ran] { CallFromMainThread([&ran] { ran = true; }, 5, true); });
      },
      5, false);
  runtime.Drain();
  EXPECT_TRUE(ran);
}

TEST(Draining, EndsInANestedLoopAlthoughFunctionsWaitForItsEnd) {
  Runtime runtime;
  bool ran = false;
  CallFromMainThread([&ran] { ran = true; }, 0, false);
  {
    const standalone::MainQueue::NestedLoop menu(runtime.GetMainQueue());
    runtime.Drain();
    EXPECT_FALSE(ran);
  }
  runtime.Drain();
  EXPECT_TRUE(ran);
}

TEST(Draining, LeavesNoTaskObjectBehind) {
  Runtime runtime;
  const auto token = std::make_shared<int>(1);
  for (int i = 0; i < 500; ++i) {
    GetCPUBoundExecutor()->Submit([token] { CallFromMainThread([token] {}, 0, true); });
  }
  runtime.Drain();
  EXPECT_EQ(token.use_count(), 1);
}

/// Posts and submits once more when it goes.
struct BusyEnd {
  ~BusyEnd() {
    CallFromMainThread([] { FAIL() << "dropped, not run"; }, 0, true);
    GetCPUBoundExecutor()->Submit([] { FAIL() << "dropped, not run"; });
  }
};

TEST(Runtime, DropsWhatWaitsAtItsEnd) {
  const auto token = std::make_shared<int>(1);
  {
    Runtime runtime;
    CallFromMainThread([token, end = std::make_shared<BusyEnd>()] {}, 0, true);
    CallFromMainThread([token] {}, 100000, false);
  }
  EXPECT_EQ(token.use_count(), 1);
}

TEST(Runtime, MayEndWhileThePoolIsBusy) {
  for (int round = 0; round < 50; ++round) {
    const auto token = std::make_shared<int>(1);
    {
      Runtime runtime;
      const auto serial = qelcore::threads::CreateQueueBasedSubExecutor(GetCPUBoundExecutor(), 1);
      for (int i = 0; i < 20; ++i) {
        qelcore::async::AsyncWithExecutorAndContinuationExecutorAndDelay(
            serial, 0ms, serial, [token] { CallFromMainThread([token] {}, 0, true); });
      }
    }
    ASSERT_EQ(token.use_count(), 1);
  }
}

TEST(Runtime, TakesItsStationsAlong) {
  const qelcore::messaging::StationID station = qelcore::messaging::UniqueStationID();
  {
    Runtime runtime;
    qelcore::messaging::RegisterStation(station);
  }
  Runtime runtime;
  EXPECT_FALSE(runtime.GetStations().IsRegistered(station));
}

}  // namespace
