#include "standalone/runtime/LargeBlocks.h"

#include <sys/mman.h>

#include <algorithm>
#include <bit>
#include <new>

namespace standalone {

namespace {

// Lists grow and shrink by some rows between two refreshes: blocks whose sizes differ by less than an
// eighth are of one size, so that one serves for the other. Only room is lost by it, which nobody
// touches.
std::size_t RoundUp(std::size_t bytes) {
  const std::size_t step = std::max(kLargePage, std::bit_floor(bytes) / 8);
  return (bytes + step - 1) / step * step;
}

void* Allocate(std::size_t bytes) {
  void* const memory = ::operator new(bytes, std::align_val_t(kLargePage));
  PreferLargePages(memory, bytes);
  return memory;
}

void Free(void* memory) noexcept {
  ::operator delete(memory, std::align_val_t(kLargePage));
}

}  // namespace

LargeBlocks& LargeBlocks::Get() noexcept {
  alignas(LargeBlocks) static unsigned char memory[sizeof(LargeBlocks)];
  static auto* const blocks = ::new (static_cast<void*>(memory)) LargeBlocks;
  return *blocks;
}

LargeBlocks::~LargeBlocks() {
  while (count > 0) Free(Remove(count - 1).memory);
}

void* LargeBlocks::Take(std::size_t bytes) {
  if (bytes > PTRDIFF_MAX) throw std::bad_alloc();
  const std::size_t rounded = RoundUp(bytes);
  if (void* const again = TakeKept(rounded)) return again;
  void* const fresh = Allocate(rounded);
  const std::scoped_lock lock(mutex);
  taken += rounded;
  return fresh;
}

void LargeBlocks::GiveBack(void* block, std::size_t bytes) noexcept {
  const std::size_t rounded = RoundUp(bytes);
  // The system has it for the asking, as long as nobody writes to it again.
  madvise(block, rounded, MADV_FREE);
  Keep({block, rounded});
}

std::size_t LargeBlocks::CountTakenBytes() const noexcept {
  const std::scoped_lock lock(mutex);
  return taken;
}

std::size_t LargeBlocks::CountKeptBytes() const noexcept {
  const std::scoped_lock lock(mutex);
  return kept;
}

void* LargeBlocks::TakeKept(std::size_t bytes) noexcept {
  const std::scoped_lock lock(mutex);
  for (std::size_t at = count; at > 0; --at) {
    if (blocks[at - 1].bytes != bytes) continue;
    taken += bytes;
    return Remove(at - 1).memory;
  }
  return nullptr;
}

void LargeBlocks::Keep(Block block) noexcept {
  std::array<Block, kMostKept + 1> surplus;
  std::size_t surplusCount = 0;
  {
    const std::scoped_lock lock(mutex);
    taken -= block.bytes;
    if (count == kMostKept) surplus[surplusCount++] = Remove(0);
    blocks[count++] = block;
    kept += block.bytes;
    while (kept > taken) surplus[surplusCount++] = Remove(0);
  }
  for (std::size_t i = 0; i < surplusCount; ++i) Free(surplus[i].memory);
}

LargeBlocks::Block LargeBlocks::Remove(std::size_t at) noexcept {
  const Block block = blocks[at];
  std::shift_left(blocks.begin() + static_cast<std::ptrdiff_t>(at),
                  blocks.begin() + static_cast<std::ptrdiff_t>(count), 1);
  --count;
  kept -= block.bytes;
  return block;
}

}  // namespace standalone
