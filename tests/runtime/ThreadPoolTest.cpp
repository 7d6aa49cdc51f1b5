#include "standalone/runtime/ThreadPool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>

#include "runtime/Gate.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/runtime/SteppedExecutor.h"

namespace {

using standalone::Runtime;
using standalone::SteppedExecutor;
using standalone::ThreadPool;
using testing::ElementsAre;

TEST(ThreadPool, RunsEveryTaskElsewhere) {
  ThreadPool pool(2);
  std::atomic<int> ran = 0;
  const std::thread::id self = std::this_thread::get_id();
  for (int i = 0; i < 1000; ++i) {
    pool.Submit([&] {
      EXPECT_NE(std::this_thread::get_id(), self);
      ++ran;
    });
  }
  pool.Drain();
  EXPECT_EQ(ran, 1000);
  EXPECT_TRUE(pool.IsIdle());
}

TEST(ThreadPool, WithoutThreadsTheTasksRunInOrderWhileItIsDrained) {
  ThreadPool pool(0);
  std::vector<int> ran;
  const std::thread::id self = std::this_thread::get_id();
  pool.Submit([&] {
    EXPECT_EQ(std::this_thread::get_id(), self);
    EXPECT_FALSE(pool.IsIdle());
    ran.push_back(1);
    pool.Submit([&] { ran.push_back(3); });
  });
  pool.Submit([&] { ran.push_back(2); });
  EXPECT_TRUE(ran.empty());
  EXPECT_FALSE(pool.IsIdle());
  pool.Drain();
  EXPECT_THAT(ran, ElementsAre(1, 2, 3));
  EXPECT_TRUE(pool.IsIdle());
}

TEST(ThreadPool, WithoutThreadsAFailureEndsInTheLogAndTheNextTaskRuns) {
  Runtime runtime(Runtime::Setup{.poolThreads = 0});
  bool ran = false;
  runtime.GetCPUExecutor()->Submit([] { throw std::runtime_error("no rows"); });
  runtime.GetCPUExecutor()->Submit([&] { ran = true; });
  runtime.Drain();
  EXPECT_TRUE(ran);
  EXPECT_THAT(runtime.GetLog().TakeFailures(), ElementsAre("task: no rows"));
}

TEST(ThreadPool, WithoutThreadsStoppingDropsWhatWaits) {
  ThreadPool pool(0);
  bool ran = false;
  pool.Submit([&] { ran = true; });
  pool.Stop();
  pool.Drain();
  EXPECT_FALSE(ran);
  EXPECT_TRUE(pool.IsIdle());
}

TEST(ThreadPool, RunsTasksAtTheSameTime) {
  ThreadPool pool(2);
  Gate first;
  Gate second;
  pool.Submit([&] {
    first.Open();
    second.Await();
  });
  pool.Submit([&] {
    second.Open();
    first.Await();
  });
  pool.Drain();
}

TEST(ThreadPool, IsNotIdleUntilATaskIsDestroyed) {
  ThreadPool pool(2);
  std::atomic<int> destroyed = 0;
  struct SlowEnd {
    explicit SlowEnd(std::atomic<int>& destroyed) : destroyed(destroyed) {}
    ~SlowEnd() {
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
      ++destroyed;
    }
    std::atomic<int>& destroyed;
  };
  for (int i = 0; i < 4; ++i) pool.Submit([end = std::make_shared<SlowEnd>(destroyed)] {});
  pool.Drain();
  EXPECT_EQ(destroyed, 4);
}

TEST(ThreadPool, ATaskMaySubmitTasks) {
  ThreadPool pool(1);
  std::atomic<int> ran = 0;
  std::function<void()> next = [&] {
    if (++ran < 50) pool.Submit(next);
  };
  pool.Submit(next);
  pool.Drain();
  EXPECT_EQ(ran, 50);
}

TEST(ThreadPool, AFailureOfATaskEndsInTheLog) {
  Runtime runtime;
  qelcore::threads::GetCPUBoundExecutor()->Submit([] { throw std::runtime_error("bad clip"); });
  qelcore::threads::GetCPUBoundExecutor()->Submit([] { throw 7; });
  runtime.Drain();
  EXPECT_THAT(runtime.GetLog().TakeFailures(),
              testing::UnorderedElementsAre("task: bad clip", "task: a failure of an unknown kind"));
}

TEST(ThreadPool, StoppingDropsWhatWaitsAndWaitsForWhatRuns) {
  ThreadPool pool(1);
  Gate started;
  Gate proceed;
  std::atomic<int> ran = 0;
  auto token = std::make_shared<int>(0);
  const std::weak_ptr<int> weak = token;
  pool.Submit([&] {
    started.Open();
    proceed.Await();
    ++ran;
  });
  pool.Submit([&ran, held = std::move(token)] { ++ran; });
  started.Await();
  std::thread stopper([&pool] { pool.Stop(); });
  while (!weak.expired()) std::this_thread::yield();
  proceed.Open();
  stopper.join();
  EXPECT_EQ(ran, 1);
  pool.Submit([&ran] { ++ran; });
  EXPECT_TRUE(pool.IsIdle()) << "a task for a stopped pool is dropped";
}

TEST(SteppedExecutor, RunsATaskOnlyWhenTold) {
  SteppedExecutor executor;
  std::vector<int> order;
  executor.Submit([&] { order.push_back(1); });
  executor.Submit([&] {
    order.push_back(2);
    executor.Submit([&] { order.push_back(3); });
  });
  EXPECT_EQ(executor.CountWaiting(), 2U);
  EXPECT_TRUE(executor.RunOne());
  EXPECT_THAT(order, ElementsAre(1));
  EXPECT_EQ(executor.RunUntilEmpty(), 2U);
  EXPECT_THAT(order, ElementsAre(1, 2, 3));
  EXPECT_FALSE(executor.RunOne());
}

TEST(SteppedExecutor, DroppingRunsNothing) {
  SteppedExecutor executor;
  const auto token = std::make_shared<int>(1);
  for (int i = 0; i < 3; ++i) executor.Submit([token] { FAIL() << "dropped, not run"; });
  executor.DropAll();
  EXPECT_EQ(token.use_count(), 1);
  EXPECT_EQ(executor.CountWaiting(), 0U);
}

TEST(SteppedExecutor, ATaskThatIsDroppedMaySubmitAnother) {
  auto executor = std::make_unique<SteppedExecutor>();
  struct SubmitsWhenDropped {
    ~SubmitsWhenDropped() {
      executor.Submit([] {});
    }
    SteppedExecutor& executor;
  };
  executor->Submit([held = std::make_shared<SubmitsWhenDropped>(*executor)] {});
  executor.reset();
}

}  // namespace
