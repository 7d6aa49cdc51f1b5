#include "scaling/AllocationWatch.h"

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

#include "standalone/runtime/LargeBlocks.h"

namespace {

constinit std::atomic<std::uint64_t> allocationCount{0};
constinit std::atomic<std::uint64_t> allocatedBytes{0};
constinit std::atomic<std::int64_t> liveBytes{0};
constinit std::atomic<std::int64_t> peakLiveBytes{0};

std::int64_t GetHeldBytes(void* block) noexcept {
  return static_cast<std::int64_t>(malloc_usable_size(block));
}

/// The host counts its large blocks itself: those that it keeps are not in use, and behind a block of
/// such an alignment the C library leaves up to a large page more, as chance wants it.
bool IsLargeBlock(std::align_val_t alignment) noexcept {
  return static_cast<std::size_t>(alignment) == standalone::kLargePage;
}

std::int64_t CountUsed() noexcept {
  return liveBytes.load(std::memory_order_relaxed) +
         static_cast<std::int64_t>(standalone::LargeBlocks::Get().CountTakenBytes());
}

void NotePeak() noexcept {
  const std::int64_t used = CountUsed();
  std::int64_t peak = peakLiveBytes.load(std::memory_order_relaxed);
  while (used > peak && !peakLiveBytes.compare_exchange_weak(peak, used, std::memory_order_relaxed)) {
  }
}

void NoteTaken(std::size_t size, std::int64_t held) noexcept {
  allocationCount.fetch_add(1, std::memory_order_relaxed);
  allocatedBytes.fetch_add(size, std::memory_order_relaxed);
  liveBytes.fetch_add(held, std::memory_order_relaxed);
  NotePeak();
}

void* TakeOrNull(std::size_t size) noexcept {
  void* const block = std::malloc(std::max<std::size_t>(size, 1));
  if (block != nullptr) NoteTaken(size, GetHeldBytes(block));
  return block;
}

void* TakeOrNull(std::size_t size, std::align_val_t alignment) noexcept {
  void* block = nullptr;
  const auto bytes = std::max(static_cast<std::size_t>(alignment), sizeof(void*));
  if (posix_memalign(&block, bytes, std::max<std::size_t>(size, 1)) != 0) return nullptr;
  NoteTaken(size, IsLargeBlock(alignment) ? 0 : GetHeldBytes(block));
  return block;
}

template <typename... Alignment>
void* Take(std::size_t size, Alignment... alignment) {
  if (void* const block = TakeOrNull(size, alignment...)) return block;
  throw std::bad_alloc();
}

void GiveBack(void* block) noexcept {
  if (block == nullptr) return;
  liveBytes.fetch_sub(GetHeldBytes(block), std::memory_order_relaxed);
  std::free(block);
}

void GiveBack(void* block, std::align_val_t alignment) noexcept {
  if (!IsLargeBlock(alignment)) return GiveBack(block);
  std::free(block);
}

}  // namespace

namespace scaling {

AllocationWatch::AllocationWatch() noexcept
    : firstCount(allocationCount), firstBytes(allocatedBytes), firstLiveBytes(CountUsed()) {
  peakLiveBytes = firstLiveBytes;
}

Allocations AllocationWatch::Take() const noexcept {
  // A large block is counted by the next who takes memory.
  NotePeak();
  return {allocationCount - firstCount, allocatedBytes - firstBytes,
          static_cast<std::uint64_t>(peakLiveBytes - firstLiveBytes)};
}

}  // namespace scaling

// All forms are replaced, as sanitizers have their own for each that is not, and would see memory taken
// by one allocator and given back to another.
void* operator new(std::size_t size) {
  return Take(size);
}
void* operator new[](std::size_t size) {
  return Take(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return TakeOrNull(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return TakeOrNull(size);
}
void* operator new(std::size_t size, std::align_val_t alignment) {
  return Take(size, alignment);
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
  return Take(size, alignment);
}
void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return TakeOrNull(size, alignment);
}
void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return TakeOrNull(size, alignment);
}

void operator delete(void* block) noexcept {
  GiveBack(block);
}
void operator delete[](void* block) noexcept {
  GiveBack(block);
}
void operator delete(void* block, std::size_t) noexcept {
  GiveBack(block);
}
void operator delete[](void* block, std::size_t) noexcept {
  GiveBack(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
  GiveBack(block);
}
void operator delete[](void* block, const std::nothrow_t&) noexcept {
  GiveBack(block);
}
void operator delete(void* block, std::align_val_t alignment) noexcept {
  GiveBack(block, alignment);
}
void operator delete[](void* block, std::align_val_t alignment) noexcept {
  GiveBack(block, alignment);
}
void operator delete(void* block, std::size_t, std::align_val_t alignment) noexcept {
  GiveBack(block, alignment);
}
void operator delete[](void* block, std::size_t, std::align_val_t alignment) noexcept {
  GiveBack(block, alignment);
}
void operator delete(void* block, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  GiveBack(block, alignment);
}
void operator delete[](void* block, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  GiveBack(block, alignment);
}
