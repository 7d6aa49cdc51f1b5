#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

#include "host/qelcore/Threads.h"
#include "runtime/Gate.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/runtime/SteppedExecutor.h"
#include "standalone/runtime/ThreadPool.h"

namespace {

using qelcore::threads::CreateQueueBasedSubExecutor;
using standalone::Runtime;
using standalone::SteppedExecutor;
using standalone::ThreadPool;
using testing::ElementsAre;

TEST(SubExecutor, NeverRunsATaskInsideSubmit) {
  const auto stepped = std::make_shared<SteppedExecutor>();
  const auto sub = CreateQueueBasedSubExecutor(stepped, 1);
  bool ran = false;
  sub->Submit([&ran] { ran = true; });
  EXPECT_FALSE(ran);
  stepped->RunUntilEmpty();
  EXPECT_TRUE(ran);
}

TEST(SubExecutor, LeavesTurnsToOtherUsersOfItsExecutor) {
  const auto stepped = std::make_shared<SteppedExecutor>();
  const auto sub = CreateQueueBasedSubExecutor(stepped, 1);
  std::vector<int> order;
  sub->Submit([&] { order.push_back(1); });
  sub->Submit([&] { order.push_back(2); });
  stepped->Submit([&] { order.push_back(3); });
  stepped->RunUntilEmpty();
  EXPECT_THAT(order, ElementsAre(1, 3, 2));
}

TEST(SubExecutor, ASerialOneRunsTasksOneAfterAnotherInOrder) {
  ThreadPool pool(3);
  const auto borrowed = std::shared_ptr<ThreadPool>(std::shared_ptr<void>(), &pool);
  const auto sub = CreateQueueBasedSubExecutor(borrowed, 1);
  std::vector<int> order;  // Unguarded: one task at a time.
  for (int i = 0; i < 2000; ++i) sub->Submit([&order, i] { order.push_back(i); });
  pool.Drain();
  ASSERT_EQ(order.size(), 2000U);
  EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(SubExecutor, KeepsTheOrderOfEachOfManyThreads) {
  ThreadPool pool(2);
  const auto borrowed = std::shared_ptr<ThreadPool>(std::shared_ptr<void>(), &pool);
  const auto sub = CreateQueueBasedSubExecutor(borrowed, 1);
  constexpr int kThreads = 4;
  constexpr int kTasks = 500;
  std::vector<int> last(kThreads, -1);
  std::vector<std::thread> threads;
  for (int thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread] {
      for (int i = 0; i < kTasks; ++i) {
        sub->Submit([&last, thread, i] {
          EXPECT_EQ(last[thread], i - 1);
          last[thread] = i;
        });
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  pool.Drain();
  EXPECT_THAT(last, testing::Each(kTasks - 1));
}

/// Counts how many tasks run at once.
struct Crowd {
  std::atomic<int> present = 0;
  std::atomic<int> most = 0;

  void Visit() {
    const int now = ++present;
    for (int seen = most; seen < now && !most.compare_exchange_weak(seen, now);) continue;
    std::this_thread::yield();
    --present;
  }
};

TEST(SubExecutor, RunsNoMoreTasksAtOnceThanAllowed) {
  for (const int limit : {-1, 1, 2, 3}) {
    ThreadPool pool(4);
    const auto borrowed = std::shared_ptr<ThreadPool>(std::shared_ptr<void>(), &pool);
    const auto sub = CreateQueueBasedSubExecutor(borrowed, limit);
    Crowd crowd;
    std::atomic<int> ran = 0;
    for (int i = 0; i < 500; ++i) {
      sub->Submit([&] {
        crowd.Visit();
        ++ran;
      });
    }
    pool.Drain();
    EXPECT_EQ(ran, 500);
    EXPECT_LE(crowd.most, std::max(limit, 1));
  }
}

TEST(SubExecutor, RunsTasksAtOnceUpToTheLimit) {
  ThreadPool pool(2);
  const auto borrowed = std::shared_ptr<ThreadPool>(std::shared_ptr<void>(), &pool);
  const auto sub = CreateQueueBasedSubExecutor(borrowed, 2);
  Gate first;
  Gate second;
  sub->Submit([&] {
    first.Open();
    second.Await();
  });
  sub->Submit([&] {
    second.Open();
    first.Await();
  });
  pool.Drain();
}

TEST(SubExecutor, TasksOutliveIt) {
  Runtime runtime;
  std::atomic<int> ran = 0;
  auto sub = CreateQueueBasedSubExecutor(qelcore::threads::GetCPUBoundExecutor(), 1);
  for (int i = 0; i < 10; ++i) sub->Submit([&ran] { ++ran; });
  sub.reset();
  runtime.Drain();
  EXPECT_EQ(ran, 10);
}

TEST(SubExecutor, ItsLastOwnerMayGoInsideItsOwnTask) {
  Runtime runtime;
  auto sub = CreateQueueBasedSubExecutor(qelcore::threads::GetCPUBoundExecutor(), 1);
  std::atomic<bool> ran = false;
  Gate started;
  auto* const raw = sub.get();
  raw->Submit([&started, &ran, held = std::move(sub)]() mutable {
    started.Await();
    held.reset();
    ran = true;
  });
  started.Open();
  runtime.Drain();
  EXPECT_TRUE(ran);
}

TEST(SubExecutor, AFailureDoesNotStopItsQueue) {
  Runtime runtime;
  const auto sub = CreateQueueBasedSubExecutor(qelcore::threads::GetCPUBoundExecutor(), 1);
  bool ran = false;
  sub->Submit([] { throw std::runtime_error("bad build"); });
  sub->Submit([&ran] { ran = true; });
  runtime.Drain();
  EXPECT_TRUE(ran);
  EXPECT_THAT(runtime.GetLog().TakeFailures(), ElementsAre("task: bad build"));
}

TEST(SubExecutor, IsDoneOnlyWhenItsTasksAreDestroyed) {
  Runtime runtime;
  const auto sub = CreateQueueBasedSubExecutor(qelcore::threads::GetCPUBoundExecutor(), 1);
  auto token = std::make_shared<int>(1);
  const std::weak_ptr<int> weak = token;
  sub->Submit([held = std::move(token)] {});
  runtime.Drain();
  EXPECT_TRUE(weak.expired());
}

TEST(SubExecutor, DropsItsTasksWhenItsExecutorDropsItsTurn) {
  auto stepped = std::make_shared<SteppedExecutor>();
  const auto token = std::make_shared<int>(1);
  auto* const raw = stepped.get();
  const auto sub =
      CreateQueueBasedSubExecutor(std::shared_ptr<SteppedExecutor>(std::shared_ptr<void>(), raw), 1);
  sub->Submit([token] {});
  sub->Submit([token] {});
  EXPECT_EQ(token.use_count(), 3);
  stepped.reset();
  EXPECT_EQ(token.use_count(), 1);
}

/// Refuses the tasks of the numbers in `refused`, counted from 0.
class Refusing final : public qelcore::threads::AsyncExecutor {
 public:
  void Submit(std::function<void()> task) override {
    if (count++ == refused) throw std::bad_alloc();
    inner.Submit(std::move(task));
  }
  SteppedExecutor inner;
  int refused = 0;
  int count = 0;
};

TEST(SubExecutor, WorksOnAfterARefusedTurn) {
  const auto refusing = std::make_shared<Refusing>();
  const auto sub = CreateQueueBasedSubExecutor(refusing, 1);
  int ran = 0;
  EXPECT_THROW(sub->Submit([&ran] { ++ran; }), std::bad_alloc);
  sub->Submit([&ran] { ++ran; });
  refusing->inner.RunUntilEmpty();
  EXPECT_EQ(ran, 1) << "the refused task was dropped, the next one ran";
}

TEST(SubExecutor, SubmittingRacesWithTheEndOfThePool) {
  for (int round = 0; round < 50; ++round) {
    const auto token = std::make_shared<int>(1);
    {
      const auto pool = std::make_shared<ThreadPool>(2);
      const auto sub = CreateQueueBasedSubExecutor(pool, 1);
      std::thread submitter([&] {
        for (int i = 0; i < 100; ++i) sub->Submit([token] {});
      });
      pool->Stop();
      submitter.join();
    }
    ASSERT_EQ(token.use_count(), 1);
  }
}

}  // namespace
