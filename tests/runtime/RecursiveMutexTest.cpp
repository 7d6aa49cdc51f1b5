#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

#include "host/qelcore/Exceptions.h"
#include "host/qelcore/Threads.h"
#include "runtime/Gate.h"
#include "standalone/runtime/Runtime.h"

namespace {

using namespace std::chrono_literals;
using qelcore::threads::RecursiveMutex;

constexpr std::chrono::milliseconds kLong{60000};

bool OtherThreadGetsIt(RecursiveMutex& mutex) {
  bool granted = false;
  std::thread([&] {
    try {
      mutex.Lock(nullptr, 0ms);
      granted = true;
      mutex.Unlock();
    } catch (const qelcore::config::lock_timeout_exception&) {
    }
  }).join();
  return granted;
}

TEST(RecursiveMutex, ItsHolderMayTakeItAgain) {
  RecursiveMutex mutex;
  mutex.Lock(nullptr, kLong);
  mutex.Lock(nullptr, kLong);
  mutex.Unlock();
  EXPECT_FALSE(OtherThreadGetsIt(mutex)) << "one Lock is not undone yet";
  mutex.Unlock();
  EXPECT_TRUE(OtherThreadGetsIt(mutex));
}

TEST(RecursiveMutex, ATimeOutRaisesTheHostsErrorWithTheAskersName) {
  RecursiveMutex mutex;
  Gate held;
  Gate release;
  std::thread holder([&] {
    mutex.Lock(nullptr, kLong);
    held.Open();
    release.Await();
    mutex.Unlock();
  });
  held.Await();
  try {
    mutex.Lock("export", 5ms);
    ADD_FAILURE();
  } catch (const qelcore::config::lock_timeout_exception& failure) {
    EXPECT_EQ(failure.GetKind(), qelcore::config::ExceptionKind::kTimeout);
    EXPECT_EQ(failure.GetObject(), "export");
  }
  EXPECT_THROW(mutex.Lock(nullptr, 0ms), qelcore::config::lock_timeout_exception);
  EXPECT_THROW(mutex.Lock(nullptr, -1ms), qelcore::config::lock_timeout_exception);
  release.Open();
  holder.join();
  mutex.Lock(nullptr, 0ms);
  mutex.Unlock();
}

TEST(RecursiveMutex, AnEndlessLimitDoesNotWrap) {
  RecursiveMutex mutex;
  std::thread holder;
  Gate held;
  holder = std::thread([&] {
    mutex.Lock(nullptr, kLong);
    held.Open();
    std::this_thread::sleep_for(5ms);
    mutex.Unlock();
  });
  held.Await();
  mutex.Lock(nullptr, std::chrono::milliseconds::max());
  mutex.Unlock();
  holder.join();
}

TEST(RecursiveMutex, OnlyItsHolderReleasesIt) {
  standalone::Runtime runtime;
  RecursiveMutex mutex("rows");
  mutex.Lock(nullptr, kLong);
  std::thread([&] { mutex.Unlock(); }).join();
  EXPECT_FALSE(OtherThreadGetsIt(mutex));
  mutex.Unlock();
  EXPECT_THAT(runtime.GetLog().TakeFailures(),
              testing::ElementsAre("rows: Unlocked by a thread that does not hold it"));
}

TEST(RecursiveMutex, KeepsThreadsApart) {
  RecursiveMutex mutex;
  int guarded = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] {
      for (int turn = 0; turn < 1000; ++turn) {
        mutex.Lock(nullptr, kLong);
        mutex.Lock(nullptr, kLong);
        ++guarded;
        mutex.Unlock();
        ++guarded;
        mutex.Unlock();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(guarded, 8000);
}

TEST(RecursiveMutex, TimeOutsUnderLoadLeaveItWhole) {
  RecursiveMutex mutex;
  int guarded = 0;
  std::atomic<int> granted = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] {
      for (int turn = 0; turn < 300; ++turn) {
        try {
          mutex.Lock(nullptr, std::chrono::milliseconds(turn % 2));
        } catch (const qelcore::config::lock_timeout_exception&) {
          continue;
        }
        ++guarded;
        ++granted;
        std::this_thread::yield();
        mutex.Unlock();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(guarded, granted);
  EXPECT_TRUE(OtherThreadGetsIt(mutex));
}

}  // namespace
