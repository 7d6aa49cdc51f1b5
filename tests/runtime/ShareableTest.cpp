#include "host/qelcore/Shareable.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <set>
#include <thread>
#include <vector>

#include "host/qelcore/UTF8String.h"
#include "runtime/Gate.h"

namespace {

using namespace qelcore::memory;

int living = 0;

class Panel : public Shareable {
 public:
  explicit Panel(int number) : number(number) { ++living; }
  ~Panel() override { --living; }
  std::shared_ptr<Panel> Self() { return SharedFrom(this); }
  const int number;
};

class LargePanel final : public Panel {
 public:
  LargePanel() : Panel(2) {}
  char filling[2000] = {};
};

TEST(Shareable, IsOwnedByItsPointers) {
  std::shared_ptr<Panel> panel = MakeShareable<Panel>(7);
  EXPECT_EQ(panel->number, 7);
  const std::weak_ptr<Panel> weak = panel;
  panel.reset();
  EXPECT_TRUE(weak.expired());
  EXPECT_EQ(living, 0);
}

TEST(Shareable, HandsOutPointersToItself) {
  const std::shared_ptr<Panel> panel = MakeShareable<Panel>(1);
  const std::shared_ptr<Panel> self = panel->Self();
  EXPECT_EQ(self, panel);
  EXPECT_FALSE(self.owner_before(panel) || panel.owner_before(self));
}

TEST(Shareable, ADerivedClassIsFreedWithItsOwnSize) {
  std::shared_ptr<Panel> panel = MakeShareable<LargePanel>();
  panel.reset();
  EXPECT_EQ(living, 0);
}

TEST(RecyclingAllocator, BlocksAreAlignedAndDistinct) {
  std::vector<std::pair<void*, std::size_t>> blocks;
  std::set<void*> addresses;
  for (int round = 0; round < 100; ++round) {
    for (std::size_t bytes = 0; bytes <= 600; bytes += 13) {
      void* const block = RecyclingAllocate(bytes);
      std::memset(block, 0xA5, bytes);
      EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % __STDCPP_DEFAULT_NEW_ALIGNMENT__, 0U);
      EXPECT_TRUE(addresses.insert(block).second);
      blocks.emplace_back(block, bytes);
    }
  }
  for (const auto& [block, bytes] : blocks) RecyclingFree(block, bytes);
}

TEST(RecyclingAllocator, FreeingNothingIsNoError) {
  RecyclingFree(nullptr, 16);
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
TEST(RecyclingAllocator, HandsAFreedBlockOutAgain) {
  void* const first = RecyclingAllocate(40);
  RecyclingFree(first, 40);
  void* const second = RecyclingAllocate(48);
  EXPECT_EQ(second, first);
  RecyclingFree(second, 48);
}

TEST(RecyclingAllocator, ALivingThreadPassesOnWhatItFreed) {
  constexpr std::size_t kBytes = 400;
  constexpr std::size_t kBlocks = 2000;
  std::set<void*> blocks;
  for (std::size_t i = 0; i < kBlocks; ++i) blocks.insert(RecyclingAllocate(kBytes));
  Gate freed;
  Gate done;
  std::thread freeing([&] {
    for (void* const block : blocks) RecyclingFree(block, kBytes);
    freed.Open();
    done.Await();
  });
  freed.Await();
  std::vector<void*> again;
  for (std::size_t i = 0; i < kBlocks; ++i) again.push_back(RecyclingAllocate(kBytes));
  done.Open();
  freeing.join();
  std::size_t reused = 0;
  for (void* const block : again) {
    reused += blocks.count(block);
    RecyclingFree(block, kBytes);
  }
  EXPECT_GT(reused, kBlocks * 9 / 10);
}
#endif

TEST(RecyclingAllocator, BlocksMayBeFreedByAnotherThread) {
  constexpr int kTexts = 5000;
  for (int round = 0; round < 5; ++round) {
    std::vector<qelcore::UTF8String> texts;
    std::thread([&texts] {
      for (int i = 0; i < kTexts; ++i) texts.emplace_back("clip number " + std::to_string(i));
    }).join();
    for (int i = 0; i < kTexts; ++i) ASSERT_EQ(texts[i], "clip number " + std::to_string(i));
    std::thread([moved = std::move(texts)] {}).join();
  }
}

TEST(RecyclingAllocator, ThreadsAllocateAtTheSameTime) {
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([i] {
      const std::string own(10 + 40 * static_cast<std::size_t>(i), static_cast<char>('a' + i));
      std::vector<qelcore::UTF8String> texts;
      for (int turn = 0; turn < 3000; ++turn) {
        texts.emplace_back(own);
        if (turn % 500 == 499) {
          for (const qelcore::UTF8String& text : texts) ASSERT_EQ(text, own);
          texts.clear();
        }
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

/// A text that ends with its thread, after the thread's own blocks may be gone.
thread_local qelcore::UTF8String lateText;

TEST(RecyclingAllocator, ServesDestructorsAtTheEndOfAThread) {
  struct LateUser {
    ~LateUser() {
      const qelcore::UTF8String made("made late");
      EXPECT_EQ(made, "made late");
    }
  };
  for (int round = 0; round < 20; ++round) {
    std::thread([] {
      thread_local LateUser user;
      static_cast<void>(&user);
      lateText = qelcore::UTF8String("kept until the end");
    }).join();
  }
}

}  // namespace
