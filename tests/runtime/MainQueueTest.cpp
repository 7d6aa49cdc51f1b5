#include "standalone/runtime/MainQueue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>

#include <atomic>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

#include "host/qelcore/Threads.h"
#include "standalone/runtime/Log.h"
#include "standalone/runtime/Runtime.h"

namespace {

using namespace std::chrono_literals;
using standalone::MainQueue;
using testing::ElementsAre;
using testing::IsEmpty;

class TheMainQueue : public testing::Test {
 protected:
  void Post(int number, std::chrono::milliseconds delay = 0ms, bool alsoInNestedLoops = true) {
    queue.Post([this, number] { order.push_back(number); }, delay, alsoInNestedLoops);
  }
  bool IsReadable() const {
    pollfd waited{queue.GetWakeDescriptor(), POLLIN, 0};
    return poll(&waited, 1, 0) == 1;
  }

  standalone::Log log;
  MainQueue queue{log};
  std::vector<int> order;
};

TEST_F(TheMainQueue, RunsFunctionsInTheOrderPosted) {
  for (int i = 0; i < 5; ++i) Post(i);
  EXPECT_THAT(order, IsEmpty()) << "posting never runs anything";
  queue.RunUntilEmpty();
  EXPECT_THAT(order, ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(TheMainQueue, RunsOneFunctionAtATime) {
  Post(1);
  Post(2);
  EXPECT_TRUE(queue.RunOne());
  EXPECT_THAT(order, ElementsAre(1));
  EXPECT_EQ(queue.CountWaiting(), 1U);
  EXPECT_TRUE(queue.RunOne());
  EXPECT_FALSE(queue.RunOne());
}

TEST_F(TheMainQueue, RunsWhatIsPostedMeanwhileAfterwards) {
  queue.Post(
      [this] {
        Post(3);
        order.push_back(1);
      },
      0ms, true);
  Post(2);
  queue.RunUntilEmpty();
  EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST_F(TheMainQueue, HoldsADelayedFunctionBack) {
  Post(1, 20ms);
  Post(2);
  queue.RunUntilEmpty();
  EXPECT_THAT(order, ElementsAre(2));
  EXPECT_EQ(queue.CountWaiting(), 1U);
  EXPECT_TRUE(queue.WaitForWork(10s));
  queue.RunUntilEmpty();
  EXPECT_THAT(order, ElementsAre(2, 1));
}

TEST_F(TheMainQueue, FunctionsOfEqualDelayKeepTheirOrder) {
  for (int i = 0; i < 5; ++i) Post(i, 5ms);
  while (order.size() < 5) {
    ASSERT_TRUE(queue.WaitForWork(10s));
    queue.RunUntilEmpty();
  }
  EXPECT_THAT(order, ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(TheMainQueue, AnEndlessDelayDoesNotWrap) {
  Post(1, std::chrono::milliseconds::max());
  Post(2, -5ms);
  queue.RunUntilEmpty();
  EXPECT_THAT(order, ElementsAre(2));
}

TEST_F(TheMainQueue, AFailureGoesToTheLogAndTheNextFunctionRuns) {
  queue.Post([] { throw std::runtime_error("row is gone"); }, 0ms, true);
  Post(1);
  queue.RunUntilEmpty();
  EXPECT_THAT(order, ElementsAre(1));
  EXPECT_THAT(log.TakeFailures(), ElementsAre("main-thread function: row is gone"));
}

TEST_F(TheMainQueue, ANestedLoopRunsOnlyWhatAllowsIt) {
  Post(1, 0ms, false);
  Post(2, 0ms, true);
  {
    const MainQueue::NestedLoop menu(queue);
    queue.RunUntilEmpty();
    EXPECT_THAT(order, ElementsAre(2));
    EXPECT_FALSE(queue.HasRunnable());
    EXPECT_FALSE(queue.WaitForWork(0ms));
    const MainQueue::NestedLoop dialog(queue);
    queue.RunUntilEmpty();
  }
  EXPECT_TRUE(IsReadable()) << "what the nested loop left is announced again";
  EXPECT_TRUE(queue.HasRunnable());
  queue.RunUntilEmpty();
  EXPECT_THAT(order, ElementsAre(2, 1));
}

TEST_F(TheMainQueue, KeepsItsOrderAcrossBothKinds) {
  for (int i = 0; i < 6; ++i) Post(i, 0ms, i % 2 == 0);
  queue.RunUntilEmpty();
  EXPECT_THAT(order, ElementsAre(0, 1, 2, 3, 4, 5));
}

TEST_F(TheMainQueue, TheDescriptorIsReadableWhileWorkMayBeDue) {
  EXPECT_FALSE(IsReadable());
  Post(1);
  Post(2);
  EXPECT_TRUE(IsReadable());
  queue.RunOne();
  EXPECT_TRUE(IsReadable());
  queue.RunUntilEmpty();
  EXPECT_FALSE(IsReadable());
}

TEST_F(TheMainQueue, WaitingEndsWhenAnotherThreadPosts) {
  std::thread poster([this] { Post(1); });
  EXPECT_TRUE(queue.WaitForWork(60s));
  poster.join();
  queue.RunUntilEmpty();
  EXPECT_THAT(order, ElementsAre(1));
}

TEST_F(TheMainQueue, WaitingEndsAtTheLimit) {
  EXPECT_FALSE(queue.WaitForWork(5ms));
  Post(1, 10min);
  EXPECT_FALSE(queue.WaitForWork(5ms));
}

TEST_F(TheMainQueue, TellsHowLongUntilAFunctionIsDue) {
  EXPECT_EQ(queue.GetTimeUntilDue(), std::nullopt);
  Post(1, 10min);
  const auto untilLater = queue.GetTimeUntilDue();
  ASSERT_TRUE(untilLater);
  EXPECT_GT(*untilLater, 9min);
  EXPECT_LE(*untilLater, 10min);
  Post(2, 5min);
  EXPECT_LE(queue.GetTimeUntilDue(), 5min) << "the earliest counts, whenever it was posted";
  Post(3);
  EXPECT_EQ(queue.GetTimeUntilDue(), 0ms);
  queue.RunOne();
  EXPECT_GT(queue.GetTimeUntilDue(), 4min);
}

TEST_F(TheMainQueue, WhatIsDueInNoTimeRunsNow) {
  Post(1, 2ms);
  while (queue.GetTimeUntilDue() > 0ms) continue;
  EXPECT_TRUE(queue.RunOne()) << "a part of a millisecond must not be cut off";
}

TEST_F(TheMainQueue, WhatANestedLoopMayNotRunIsNotDueInIt) {
  Post(1, 0ms, false);
  const MainQueue::NestedLoop menu(queue);
  EXPECT_EQ(queue.GetTimeUntilDue(), std::nullopt);
  Post(2, 10min, true);
  EXPECT_GT(queue.GetTimeUntilDue(), 9min);
}

TEST_F(TheMainQueue, TheDescriptorRestsWhenNothingIsDueYet) {
  Post(1, 10min);
  EXPECT_TRUE(IsReadable());
  EXPECT_TRUE(queue.GetTimeUntilDue());
  EXPECT_FALSE(IsReadable());
  Post(2);
  EXPECT_EQ(queue.GetTimeUntilDue(), 0ms);
  EXPECT_TRUE(IsReadable());
}

TEST_F(TheMainQueue, AFunctionIsDestroyedAfterItRan) {
  auto token = std::make_shared<int>(1);
  const std::weak_ptr<int> weak = token;
  queue.Post([held = std::move(token)] {}, 0ms, true);
  queue.RunOne();
  EXPECT_TRUE(weak.expired());
}

/// Posts one more function when it goes.
struct PostsWhenDropped {
  explicit PostsWhenDropped(MainQueue& queue, int left) : queue(queue), left(left) {}
  ~PostsWhenDropped() {
    if (left == 0) return;
    queue.Post([next = std::make_shared<PostsWhenDropped>(queue, left - 1)] {}, 0ms, true);
  }
  MainQueue& queue;
  const int left;
};

TEST_F(TheMainQueue, DroppingIncludesWhatIsPostedMeanwhile) {
  queue.Post([held = std::make_shared<PostsWhenDropped>(queue, 3)] {}, 0ms, false);
  queue.DropAll();
  EXPECT_EQ(queue.CountWaiting(), 0U);
}

TEST_F(TheMainQueue, TakesFunctionsFromManyThreadsInTheOrderOfEach) {
  constexpr int kThreads = 4;
  constexpr int kFunctions = 1000;
  std::vector<int> last(kThreads, -1);
  int ran = 0;
  std::vector<std::thread> threads;
  for (int thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread] {
      for (int i = 0; i < kFunctions; ++i) {
        queue.Post(
            [&, thread, i] {
              EXPECT_EQ(last[thread], i - 1);
              last[thread] = i;
              ++ran;
            },
            0ms, i % 2 == 0);
      }
    });
  }
  while (ran < kThreads * kFunctions) {
    ASSERT_TRUE(queue.WaitForWork(60s));
    queue.RunUntilEmpty();
  }
  for (std::thread& thread : threads) thread.join();
}

TEST(CallFromMainThread, AlwaysQueues) {
  standalone::Runtime runtime;
  bool ran = false;
  qelcore::threads::CallFromMainThread([&ran] { ran = true; }, 0, true);
  EXPECT_FALSE(ran);
  runtime.Drain();
  EXPECT_TRUE(ran);
}

TEST(CallFromMainThread, RunsAndDestroysOnTheMainThread) {
  standalone::Runtime runtime;
  struct ChecksItsEnd {
    ~ChecksItsEnd() { EXPECT_TRUE(qelcore::threads::CurrentThreadIsMainThread()); }
  };
  int ran = 0;
  std::thread([&ran] {
    EXPECT_FALSE(qelcore::threads::CurrentThreadIsMainThread());
    qelcore::threads::CallFromMainThread(
        [&ran, end = std::make_shared<ChecksItsEnd>()] {
          EXPECT_TRUE(qelcore::threads::CurrentThreadIsMainThread());
          ++ran;
        },
        1, false);
  }).join();
  runtime.Drain();
  EXPECT_EQ(ran, 1);
}

}  // namespace
