#include "scaling/AllocationWatch.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "standalone/runtime/LargeBlocks.h"

namespace {

using scaling::AllocationWatch;
using standalone::LargeBlocks;

constexpr std::size_t kBytes = 2 * LargeBlocks::kSmallest;
/// What the C library adds to a block at most.
constexpr std::size_t kRounding = 4096;

TEST(AllocationWatch, BlocksAreInUseUntilTheyAreGivenBack) {
  const AllocationWatch watch;
  for (int i = 0; i < 3; ++i) std::string(kBytes, 'a').front() = 'b';
  EXPECT_GE(watch.Take().peakBytes, kBytes);
  EXPECT_LE(watch.Take().peakBytes, kBytes + kRounding);
  EXPECT_GE(watch.Take().bytes, 3 * kBytes);
}

TEST(AllocationWatch, LargeBlocksAreInUseAsTheHostCountsThem) {
  LargeBlocks& blocks = LargeBlocks::Get();
  const AllocationWatch watch;
  void* const first = blocks.Take(kBytes);
  void* const second = blocks.Take(kBytes);
  EXPECT_EQ(watch.Take().peakBytes, 2 * kBytes);
  blocks.GiveBack(second, kBytes);
  // One that is kept serves again, and two are in use at once as before.
  blocks.GiveBack(blocks.Take(kBytes), kBytes);
  blocks.GiveBack(first, kBytes);
  EXPECT_EQ(watch.Take().peakBytes, 2 * kBytes);
}

}  // namespace
