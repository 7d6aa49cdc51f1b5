#include "standalone/probing/ParallelLoop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <barrier>
#include <chrono>
#include <stdexcept>
#include <thread>
#include <vector>

#include "standalone/runtime/SteppedExecutor.h"
#include "standalone/runtime/ThreadPool.h"

namespace standalone {
namespace {

TEST(ParallelLoops, CallTheBodyOnceForEachNumber) {
  constexpr std::size_t kCount = 10'000;
  ThreadPool pool(4);
  std::vector<std::atomic<int>> calls(kCount);
  ParallelLoop::Run({kCount, [&](std::size_t i) { ++calls[i]; }, {}}, &pool, 4);
  for (const auto& count : calls) EXPECT_EQ(count, 1);
}

TEST(ParallelLoops, OfNothingCallNothing) {
  ParallelLoop::Run({0, [](std::size_t) { FAIL(); }, {}}, nullptr, 0);
}

/// Two calls that wait for each other can only end when they run at the same time.
TEST(ParallelLoops, HelpersWorkBesideTheCaller) {
  ThreadPool pool(1);
  std::barrier meeting(2);
  ParallelLoop::Run({2, [&](std::size_t) { meeting.arrive_and_wait(); }, {}}, &pool, 1);
}

TEST(ParallelLoops, EndWithoutAnyHelperAndLateOnesDoNothing) {
  SteppedExecutor executor;
  int calls = 0;
  ParallelLoop::Run({100, [&](std::size_t) { ++calls; }, {}}, &executor, 3);
  EXPECT_EQ(calls, 100);
  EXPECT_EQ(executor.RunUntilEmpty(), 3u);
  EXPECT_EQ(calls, 100);
}

TEST(ParallelLoops, TellTheCallerHowFarTheyAre) {
  std::vector<std::size_t> reports;
  const std::thread::id caller = std::this_thread::get_id();
  ThreadPool pool(2);
  const auto goesOn = [&](std::size_t done) {
    EXPECT_EQ(std::this_thread::get_id(), caller);
    reports.push_back(done);
    return true;
  };
  ParallelLoop::Run({50, [](std::size_t) {}, goesOn}, &pool, 2);
  EXPECT_TRUE(std::is_sorted(reports.begin(), reports.end()));
  EXPECT_EQ(reports.back(), 50u);
}

TEST(ParallelLoops, EndWhenTheCallerSaysSo) {
  SteppedExecutor executor;
  std::size_t calls = 0;
  const auto goesOn = [](std::size_t done) { return done < 7; };
  ParallelLoop::Run({100, [&](std::size_t) { ++calls; }, goesOn}, &executor, 1);
  EXPECT_EQ(calls, 7u);
  executor.DropAll();
}

TEST(ParallelLoops, AFailureEndsTheLoopAndLeavesIt) {
  ThreadPool pool(2);
  std::atomic<int> calls{0};
  std::atomic<bool> hasFailed{false};
  // The others wait until the failure is under way, so that they cannot have done everything before.
  const auto body = [&](std::size_t i) {
    ++calls;
    if (i == 3) {
      hasFailed = true;
      throw std::runtime_error("disk on fire");
    }
    while (i > 3 && !hasFailed) std::this_thread::yield();
    if (i > 3) std::this_thread::sleep_for(std::chrono::microseconds(10));
  };
  EXPECT_THROW(ParallelLoop::Run({100'000, body, {}}, &pool, 2), std::runtime_error);
  EXPECT_LT(calls, 100'000);
}

}  // namespace
}  // namespace standalone
