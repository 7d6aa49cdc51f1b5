#include "host/qelcore/Future.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "host/qelcore/Exceptions.h"
#include "runtime/Gate.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/runtime/SteppedExecutor.h"

namespace {

using namespace std::chrono_literals;
using namespace qelcore::async;
using qelcore::threads::AsyncExecutor;
using qelcore::threads::CreateQueueBasedSubExecutor;
using standalone::Runtime;
using standalone::SteppedExecutor;
using testing::ElementsAre;
using testing::IsEmpty;

/// What a read of the future says; empty when it succeeded.
std::string Read(const Future<void>& future) {
  try {
    future.Get();
    return "";
  } catch (const std::exception& failure) {
    return failure.what();
  }
}

class Futures : public testing::Test {
 protected:
  Future<void> Async(std::function<void()> function, std::chrono::milliseconds delay = 0ms) {
    return AsyncWithExecutorAndContinuationExecutorAndDelay(executor, delay, executor,
                                                            std::move(function));
  }
  std::vector<std::string> TakeFailures() { return runtime.GetLog().TakeFailures(); }

  std::shared_ptr<SteppedExecutor> executor = std::make_shared<SteppedExecutor>();
  Runtime runtime{Runtime::Setup{.cpuExecutor = executor}};
};

TEST_F(Futures, AreNotReadyUntilTheWorkIsDone) {
  bool ran = false;
  const Future<void> future = Async([&ran] { ran = true; });
  EXPECT_FALSE(ran) << "work never runs inside the call";
  EXPECT_FALSE(future.IsReady());
  EXPECT_EQ(Read(future), "Future: Not Ready");
  executor->RunOne();
  EXPECT_TRUE(ran);
  EXPECT_TRUE(future.IsReady());
  EXPECT_EQ(Read(future), "");
}

TEST_F(Futures, AnEmptyOneIsNeverReady) {
  const Future<void> empty;
  EXPECT_TRUE(empty.IsEmpty());
  EXPECT_FALSE(empty.IsReady());
  EXPECT_THROW(empty.Get(), qelcore::config::future_exception);
  EXPECT_TRUE(empty.MakeContinuation([](const Future<void>&, Promise<void>&) {}).IsEmpty());
}

TEST_F(Futures, KeepAFailureForEveryReader) {
  const Future<void> future = Async([] { throw std::runtime_error("missing clip"); });
  const Future<void> copy = future;
  executor->RunOne();
  EXPECT_EQ(Read(future), "missing clip");
  EXPECT_EQ(Read(copy), "missing clip");
  EXPECT_THROW(future.Get(), std::runtime_error);
}

TEST_F(Futures, ReleasingOneNeitherWaitsNorCancels) {
  bool ran = false;
  Async([&ran] { ran = true; });
  executor->RunUntilEmpty();
  EXPECT_TRUE(ran);
}

/// Notes, whenever it is given a task, whether an object is gone.
class ObservingExecutor final : public AsyncExecutor {
 public:
  void Submit(std::function<void()> task) override {
    wasGone.push_back(observed.expired());
    inner.Submit(std::move(task));
  }
  SteppedExecutor inner;
  std::weak_ptr<int> observed;
  std::vector<bool> wasGone;
};

TEST_F(Futures, DestroyTheFunctionBeforeTheyAreReady) {
  const auto observer = std::make_shared<ObservingExecutor>();
  auto token = std::make_shared<int>(1);
  observer->observed = token;
  const Future<void> future = AsyncWithExecutorAndContinuationExecutorAndDelay(
      executor, 0ms, observer, [held = std::move(token)] {});
  future.MakeContinuation([](const Future<void>&, Promise<void>&) {});
  executor->RunUntilEmpty();
  EXPECT_THAT(observer->wasGone, ElementsAre(true));
  observer->inner.DropAll();
}

TEST_F(Futures, DestroyAContinuationBeforeItsResultIsReady) {
  const auto observer = std::make_shared<ObservingExecutor>();
  auto token = std::make_shared<int>(1);
  observer->observed = token;
  const Future<void> future =
      AsyncWithExecutorAndContinuationExecutorAndDelay(executor, 0ms, observer, [] {});
  future.MakeContinuation([held = std::move(token)](const Future<void>&, Promise<void>&) {})
      .MakeContinuation([](const Future<void>&, Promise<void>&) {});
  executor->RunUntilEmpty();
  observer->inner.RunUntilEmpty();
  EXPECT_THAT(observer->wasGone, ElementsAre(false, true));
  observer->inner.DropAll();
}

TEST_F(Futures, AContinuationIsQueuedOnceTheWorkIsDone) {
  std::vector<int> order;
  const Future<void> future = Async([&] { order.push_back(1); });
  const Future<void> result =
      future.MakeContinuation([&](const Future<void>& completed, Promise<void>&) {
        EXPECT_TRUE(completed.IsReady());
        completed.Get();
        order.push_back(2);
      });
  executor->RunOne();
  EXPECT_THAT(order, ElementsAre(1));
  EXPECT_FALSE(result.IsReady());
  executor->RunOne();
  EXPECT_THAT(order, ElementsAre(1, 2));
  EXPECT_EQ(Read(result), "");
}

TEST_F(Futures, AContinuationMayComeLate) {
  const Future<void> future = Async([] {});
  executor->RunUntilEmpty();
  bool ran = false;
  future.MakeContinuation([&ran](const Future<void>&, Promise<void>&) { ran = true; });
  EXPECT_FALSE(ran) << "it is queued, never run inside the call";
  executor->RunUntilEmpty();
  EXPECT_TRUE(ran);
}

TEST_F(Futures, ContinuationsRunAlthoughEveryFutureWasReleased) {
  int ran = 0;
  Async([] {}).MakeContinuation([&ran](const Future<void>&, Promise<void>&) { ++ran; });
  executor->RunUntilEmpty();
  EXPECT_EQ(ran, 1);
}

TEST_F(Futures, ContinuationsOfASerialQueueComeAfterTheWorkQueuedBefore) {
  const std::shared_ptr<AsyncExecutor> serial = CreateQueueBasedSubExecutor(executor, 1);
  std::string order;
  for (const char name : {'1', '2', '3'}) {
    AsyncWithExecutorAndContinuationExecutorAndDelay(serial, 0ms, serial, [&order, name] {
      order += {'B', name, ' '};
    }).MakeContinuation([&order, name](const Future<void>&, Promise<void>&) {
      order += {'C', name, ' '};
    });
  }
  executor->RunUntilEmpty();
  EXPECT_EQ(order, "B1 B2 B3 C1 C2 C3 ");
}

TEST_F(Futures, AContinuationRunsAfterAFailureToo) {
  std::string seen;
  const Future<void> future = Async([] { throw std::runtime_error("missing clip"); });
  const Future<void> result = future.MakeContinuation(
      [&seen](const Future<void>& completed, Promise<void>&) { seen = Read(completed); });
  executor->RunUntilEmpty();
  EXPECT_EQ(seen, "missing clip");
  EXPECT_EQ(Read(result), "") << "an untouched promise is a success";
}

TEST_F(Futures, AFailureThatLeavesAContinuationIsItsResult) {
  const Future<void> future = Async([] { throw std::runtime_error("missing clip"); });
  const Future<void> result =
      future.MakeContinuation([](const Future<void>& completed, Promise<void>&) { completed.Get(); });
  executor->RunUntilEmpty();
  EXPECT_EQ(Read(result), "missing clip");
  EXPECT_THAT(TakeFailures(), IsEmpty());
}

TEST_F(Futures, AContinuationSetsItsResultOnce) {
  const Future<void> future = Async([] {});
  const Future<void> result = future.MakeContinuation([](const Future<void>&, Promise<void>& promise) {
    promise.SetException(std::make_exception_ptr(std::runtime_error("first")));
    promise.SetValue();
    throw std::runtime_error("second");
  });
  executor->RunUntilEmpty();
  EXPECT_EQ(Read(result), "first");
}

TEST_F(Futures, AContinuationMayKeepItsPromiseForLater) {
  auto kept = std::make_unique<Promise<void>>(nullptr);
  const Future<void> future = Async([] {});
  const Future<void> result =
      future.MakeContinuation([&kept](const Future<void>&, Promise<void>& promise) {
        kept = std::make_unique<Promise<void>>(std::move(promise));
      });
  executor->RunUntilEmpty();
  EXPECT_FALSE(result.IsReady());
  kept->SetValue();
  EXPECT_EQ(Read(result), "");
}

TEST_F(Futures, WorkThatIsDroppedCancelsItsFuture) {
  auto dropped = std::make_shared<SteppedExecutor>();
  const Future<void> future =
      AsyncWithExecutorAndContinuationExecutorAndDelay(dropped, 0ms, executor, [] {});
  std::string seen;
  const Future<void> result = future.MakeContinuation(
      [&seen](const Future<void>& completed, Promise<void>&) { seen = Read(completed); });
  dropped.reset();
  EXPECT_TRUE(future.IsReady());
  EXPECT_EQ(Read(future), "Future Is Cancelled");
  executor->RunUntilEmpty();
  EXPECT_EQ(seen, "Future Is Cancelled") << "the continuation runs in every case";
  EXPECT_EQ(Read(result), "");
}

/// Takes no tasks any more.
class ClosedExecutor final : public AsyncExecutor {
 public:
  void Submit(std::function<void()>) override {}
};

TEST_F(Futures, AContinuationThatIsDroppedCancelsItsResult) {
  const Future<void> future = AsyncWithExecutorAndContinuationExecutorAndDelay(
      executor, 0ms, std::make_shared<ClosedExecutor>(), [] {});
  const Future<void> early = future.MakeContinuation([](const Future<void>&, Promise<void>&) {});
  EXPECT_FALSE(early.IsReady());
  executor->RunUntilEmpty();
  const Future<void> late = future.MakeContinuation([](const Future<void>&, Promise<void>&) {});
  EXPECT_EQ(Read(early), "Future Is Cancelled");
  EXPECT_EQ(Read(late), "Future Is Cancelled");
}

/// Has no memory for tasks.
class FailingExecutor final : public AsyncExecutor {
 public:
  void Submit(std::function<void()>) override { throw std::bad_alloc(); }
};

TEST_F(Futures, AContinuationThatCannotBeQueuedIsLoggedAndCancelled) {
  const Future<void> future = AsyncWithExecutorAndContinuationExecutorAndDelay(
      executor, 0ms, std::make_shared<FailingExecutor>(), [] {});
  const Future<void> result = future.MakeContinuation([](const Future<void>&, Promise<void>&) {});
  executor->RunUntilEmpty();
  EXPECT_EQ(Read(result), "Future Is Cancelled");
  EXPECT_THAT(TakeFailures(), ElementsAre("continuation: std::bad_alloc"));
}

TEST_F(Futures, AFailureThatNobodyReadGoesToTheLog) {
  Async([] { throw std::runtime_error("missing clip"); });
  executor->RunUntilEmpty();
  EXPECT_THAT(TakeFailures(), ElementsAre("unread result: missing clip"));
}

TEST_F(Futures, AFailurePassedOnIsLoggedOnce) {
  Async([] {
    throw std::runtime_error("missing clip");
  }).MakeContinuation([](const Future<void>& completed, Promise<void>& result) {
    try {
      completed.Get();
    } catch (...) {
      result.SetException(std::current_exception());
    }
  });
  executor->RunUntilEmpty();
  EXPECT_THAT(TakeFailures(), ElementsAre("unread result: missing clip"));
}

TEST_F(Futures, AFailureIsLoggedOnlyWhenItsLastHolderLetsGo) {
  Future<void> future = Async([] { throw std::runtime_error("missing clip"); });
  executor->RunUntilEmpty();
  EXPECT_THAT(TakeFailures(), IsEmpty());
  future = Future<void>();
  EXPECT_THAT(TakeFailures(), ElementsAre("unread result: missing clip"));
}

TEST_F(Futures, NeitherReadFailuresNorCancellationsAreLogged) {
  {
    const Future<void> future = Async([] { throw std::runtime_error("missing clip"); });
    executor->RunUntilEmpty();
    Read(future);
    auto dropped = std::make_shared<SteppedExecutor>();
    AsyncWithExecutorAndContinuationExecutorAndDelay(dropped, 0ms, executor, [] {});
  }
  EXPECT_THAT(TakeFailures(), IsEmpty());
}

TEST_F(Futures, ADelayHoldsTheWorkBack) {
  bool ran = false;
  const Future<void> future = Async([&ran] { ran = true; }, 10ms);
  runtime.GetMainQueue().RunUntilEmpty();
  EXPECT_EQ(executor->CountWaiting(), 0U);
  runtime.Drain();
  EXPECT_FALSE(ran) << "the main thread only passes it on";
  executor->RunUntilEmpty();
  EXPECT_TRUE(ran);
  EXPECT_TRUE(future.IsReady());
}

TEST_F(Futures, WithoutAnExecutorTheDefaultOneIsUsed) {
  bool ran = false;
  AsyncWithExecutorAndContinuationExecutorAndDelay(nullptr, 0ms, nullptr, [&ran] { ran = true; });
  EXPECT_EQ(GetDefaultExecutor(), executor);
  executor->RunUntilEmpty();
  EXPECT_TRUE(ran);
}

TEST_F(Futures, ADroppedPromiseCancels) {
  const Future<void> future = Async([] {});
  std::unique_ptr<Promise<void>> kept;
  const Future<void> result =
      future.MakeContinuation([&kept](const Future<void>&, Promise<void>& promise) {
        kept = std::make_unique<Promise<void>>(std::move(promise));
      });
  executor->RunUntilEmpty();
  kept.reset();
  EXPECT_EQ(Read(result), "Future Is Cancelled");
}

TEST(FuturesOfAPool, EndCancelledWhenThePoolEnds) {
  Future<void> waiting;
  Future<void> result;
  std::thread opener;
  Gate proceed;
  {
    Runtime runtime(Runtime::Setup{.poolThreads = 1});
    const auto pool = GetDefaultExecutor();
    Gate started;
    pool->Submit([&] {
      started.Open();
      proceed.Await();
    });
    started.Await();
    waiting = AsyncWithExecutorAndContinuationExecutorAndDelay(pool, 0ms, pool, [] {});
    result = waiting.MakeContinuation([](const Future<void>&, Promise<void>&) {});
    // The pool's only thread is busy until the end of the pool has dropped the work.
    opener = std::thread([&] {
      while (!result.IsReady()) std::this_thread::yield();
      proceed.Open();
    });
  }
  opener.join();
  EXPECT_EQ(Read(waiting), "Future Is Cancelled");
  EXPECT_EQ(Read(result), "Future Is Cancelled");
}

TEST(FuturesOfAPool, SurviveEveryOrderOfEvents) {
  Runtime runtime(Runtime::Setup{.poolThreads = 3});
  const auto pool = GetDefaultExecutor();
  std::atomic<int> continued = 0;
  constexpr int kRounds = 1000;
  for (int i = 0; i < kRounds; ++i) {
    const Future<void> future = AsyncWithExecutorAndContinuationExecutorAndDelay(pool, 0ms, pool, [i] {
      if (i % 3 == 0) throw std::runtime_error("every third");
    });
    const auto count = [&continued](const Future<void>& completed, Promise<void>&) {
      Read(completed);
      ++continued;
    };
    const Future<void> first = future.MakeContinuation(count);
    const Future<void> second = future.MakeContinuation(count);
    if (i % 2 == 0) pool->Submit([first] { static_cast<void>(first.IsReady()); });
  }
  runtime.Drain();
  EXPECT_EQ(continued, 2 * kRounds);
  EXPECT_THAT(runtime.GetLog().TakeFailures(), IsEmpty());
}

TEST(FuturesOfAPool, FailuresOfManyThreadsReachTheLog) {
  Runtime runtime(Runtime::Setup{.poolThreads = 3});
  const auto pool = GetDefaultExecutor();
  for (int i = 0; i < 200; ++i) {
    AsyncWithExecutorAndContinuationExecutorAndDelay(pool, 0ms, pool, [] {
      throw std::runtime_error("lost");
    }).MakeContinuation([](const Future<void>& completed, Promise<void>&) { completed.Get(); });
  }
  runtime.Drain();
  const std::vector<std::string> failures = runtime.GetLog().TakeFailures();
  EXPECT_EQ(failures.size(), 200U);
  EXPECT_THAT(failures, testing::Each("unread result: lost"));
}

}  // namespace
