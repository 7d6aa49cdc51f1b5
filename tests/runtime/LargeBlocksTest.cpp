#include "standalone/runtime/LargeBlocks.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <thread>
#include <utility>
#include <vector>

namespace standalone {
namespace {

constexpr std::size_t kBytes = LargeBlocks::kSmallest;

/// Blocks that are back when the test ends.
class TakenBlocks {
 public:
  explicit TakenBlocks(LargeBlocks& from) : from(from) {}
  ~TakenBlocks() {
    while (!taken.empty()) GiveLastBack();
  }
  TakenBlocks(const TakenBlocks&) = delete;
  TakenBlocks& operator=(const TakenBlocks&) = delete;

  void* Take(std::size_t bytes) { return taken.emplace_back(from.Take(bytes), bytes).first; }
  void GiveLastBack() {
    from.GiveBack(taken.back().first, taken.back().second);
    taken.pop_back();
  }

 private:
  LargeBlocks& from;
  std::vector<std::pair<void*, std::size_t>> taken;
};

TEST(LargeBlocks, StandOnLargePagesAndHaveTheirRoom) {
  LargeBlocks blocks;
  TakenBlocks taken(blocks);
  for (const std::size_t bytes : {kBytes, kBytes + 1, 3 * kBytes - 1}) {
    void* const block = taken.Take(bytes);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % kLargePage, 0U);
    std::memset(block, 7, bytes);
  }
}

TEST(LargeBlocks, WhatCameBackServesTheNextOneOfItsSize) {
  LargeBlocks blocks;
  TakenBlocks taken(blocks);
  taken.Take(kBytes);
  void* const second = taken.Take(kBytes);
  taken.GiveLastBack();
  EXPECT_EQ(taken.Take(kBytes), second);
}

TEST(LargeBlocks, ListsThatDifferByAFewRowsShareABlock) {
  constexpr std::size_t kList = 100 * kBytes;
  LargeBlocks blocks;
  TakenBlocks taken(blocks);
  taken.Take(kList);
  void* const second = taken.Take(kList);
  taken.GiveLastBack();
  EXPECT_EQ(taken.Take(kList - 1000), second);
  taken.GiveLastBack();
  EXPECT_EQ(taken.Take(kList), second);
}

TEST(LargeBlocks, ASmallerListDoesNotHoldAFarLargerBlock) {
  LargeBlocks blocks;
  TakenBlocks taken(blocks);
  taken.Take(16 * kBytes);
  void* const second = taken.Take(16 * kBytes);
  taken.GiveLastBack();
  EXPECT_NE(taken.Take(12 * kBytes), second);
}

TEST(LargeBlocks, NoMoreIsKeptThanIsInUse) {
  LargeBlocks blocks;
  TakenBlocks taken(blocks);
  for (int i = 0; i < 4; ++i) taken.Take(kBytes);
  EXPECT_EQ(blocks.CountTakenBytes(), 4 * kBytes);
  EXPECT_EQ(blocks.CountKeptBytes(), 0U);
  taken.GiveLastBack();
  EXPECT_EQ(blocks.CountKeptBytes(), kBytes);
  taken.GiveLastBack();
  EXPECT_EQ(blocks.CountKeptBytes(), 2 * kBytes);
  taken.GiveLastBack();
  EXPECT_EQ(blocks.CountKeptBytes(), kBytes);
  taken.GiveLastBack();
  EXPECT_EQ(blocks.CountTakenBytes(), 0U);
  EXPECT_EQ(blocks.CountKeptBytes(), 0U);
}

TEST(LargeBlocks, OfManyThatComeBackTheLastAreKept) {
  constexpr std::size_t kMany = 100;
  LargeBlocks blocks;
  TakenBlocks inUse(blocks);
  inUse.Take(kMany * kBytes);
  TakenBlocks taken(blocks);
  void* const first = taken.Take(kBytes);
  for (std::size_t i = 1; i < kMany; ++i) taken.Take(kBytes);
  for (std::size_t i = 0; i < kMany; ++i) taken.GiveLastBack();
  EXPECT_LT(blocks.CountKeptBytes(), kMany * kBytes);
  EXPECT_EQ(taken.Take(kBytes), first);
}

TEST(LargeBlocks, MoreThanThereIsRaisesBadAlloc) {
  LargeBlocks blocks;
  EXPECT_THROW(blocks.Take(SIZE_MAX), std::bad_alloc);
  EXPECT_EQ(blocks.CountTakenBytes(), 0U);
}

TEST(LargeBlocks, ThreadsTakeAndGiveBackAtTheSameTime) {
  LargeBlocks blocks;
  TakenBlocks inUse(blocks);
  inUse.Take(8 * kBytes);
  std::vector<std::thread> threads;
  for (unsigned char i = 1; i <= 4; ++i) {
    threads.emplace_back([&blocks, i] {
      for (int turn = 0; turn < 200; ++turn) {
        auto* const block = static_cast<unsigned char*>(blocks.Take(kBytes));
        block[0] = block[kBytes - 1] = i;
        std::this_thread::yield();
        EXPECT_EQ(block[0], i);
        EXPECT_EQ(block[kBytes - 1], i);
        blocks.GiveBack(block, kBytes);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(blocks.CountTakenBytes(), 8 * kBytes);
}

}  // namespace
}  // namespace standalone
