#include "standalone/runtime/RecyclingAllocator.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <mutex>
#include <new>
#include <utility>

#include "standalone/runtime/LargeBlocks.h"

namespace standalone {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)

void* TakeBlock(std::size_t bytes) {
  return ::operator new(bytes);
}
void GiveBlockBack(void* block, std::size_t) noexcept {
  ::operator delete(block);
}

#else

namespace {

constexpr std::size_t kStep = 16;  // Also the alignment of every block.
constexpr std::size_t kClasses = kLargestRecycledBlock / kStep;
constexpr std::size_t kFirstSlabBytes = 65536;
constexpr std::size_t kLargestSlabBytes = LargeBlocks::kSmallest;
constexpr std::uint32_t kBatch = 32;         // Blocks that move between a thread and the store.
constexpr std::uint32_t kKept = 2 * kBatch;  // Blocks of a size that a thread keeps at most.

static_assert(kStep >= __STDCPP_DEFAULT_NEW_ALIGNMENT__);

struct FreeBlock {
  FreeBlock* next;
};

struct FreeList {
  FreeBlock* first = nullptr;
  std::uint32_t count = 0;

  void Push(void* block) noexcept {
    first = ::new (block) FreeBlock{first};
    ++count;
  }
  FreeBlock* Pop() noexcept {
    FreeBlock* const block = first;
    first = block->next;
    --count;
    return block;
  }
  void MoveTo(FreeList& other, std::uint32_t blocks) noexcept {
    for (; blocks > 0 && first != nullptr; --blocks) other.Push(Pop());
  }
};

void* TakeLargerBlock(std::size_t bytes) {
  return bytes < LargeBlocks::kSmallest ? ::operator new(bytes) : LargeBlocks::Get().Take(bytes);
}

void GiveLargerBlockBack(void* block, std::size_t bytes) noexcept {
  if (bytes < LargeBlocks::kSmallest) return ::operator delete(block);
  LargeBlocks::Get().GiveBack(block, bytes);
}

std::size_t ClassOf(std::size_t bytes) {
  return bytes == 0 ? 0 : (bytes - 1) / kStep;
}
std::size_t BytesOf(std::size_t sizeClass) {
  return (sizeClass + 1) * kStep;
}

/// What all threads share. Never destroyed: texts in static objects give their blocks back at exit.
class BlockStore {
 public:
  static BlockStore& Get() noexcept {
    alignas(BlockStore) static unsigned char memory[sizeof(BlockStore)];
    static auto* const store = ::new (static_cast<void*>(memory)) BlockStore;
    return *store;
  }

  void Fill(FreeList& list, std::size_t sizeClass) {
    const std::scoped_lock lock(mutex);
    if (lists[sizeClass].count == 0) Carve(sizeClass);
    lists[sizeClass].MoveTo(list, kBatch);
  }

  void Take(FreeList& list, std::size_t sizeClass, std::uint32_t blocks) noexcept {
    const std::scoped_lock lock(mutex);
    list.MoveTo(lists[sizeClass], blocks);
  }

 private:
  /// Makes a batch of new blocks; what is too small at a slab's end is left unused.
  void Carve(std::size_t sizeClass) {
    const std::size_t bytes = BytesOf(sizeClass);
    if (static_cast<std::size_t>(slabEnd - slabNext) < bytes) AddSlab();
    const std::size_t room = static_cast<std::size_t>(slabEnd - slabNext) / bytes;
    for (std::size_t i = std::min<std::size_t>(room, kBatch); i > 0; --i) {
      lists[sizeClass].Push(std::exchange(slabNext, slabNext + bytes));
    }
  }

  /// Slabs grow with what is taken, so that a short timeline takes little and a long one few.
  void AddSlab() {
    slabNext = static_cast<unsigned char*>(TakeLargerBlock(slabBytes));
    slabEnd = slabNext + slabBytes;
    slabTotal += slabBytes;
    slabBytes = std::clamp(std::bit_floor(slabTotal / 4), kFirstSlabBytes, kLargestSlabBytes);
  }

  std::mutex mutex;
  std::array<FreeList, kClasses> lists;
  unsigned char* slabNext = nullptr;
  unsigned char* slabEnd = nullptr;
  std::size_t slabBytes = kFirstSlabBytes;
  std::size_t slabTotal = 0;
};

// Outlives ThreadBlocks within the thread, as it has no destructor.
thread_local constinit bool threadBlocksAreGone = false;

/// A thread's own blocks; given to the store when the thread ends.
struct ThreadBlocks {
  std::array<FreeList, kClasses> lists;

  ~ThreadBlocks() {
    threadBlocksAreGone = true;
    for (std::size_t i = 0; i < kClasses; ++i) BlockStore::Get().Take(lists[i], i, lists[i].count);
  }
};

thread_local constinit ThreadBlocks threadBlocks;

// Out of line, so that the usual ways stay short.
[[gnu::noinline]] void Refill(FreeList& list, std::size_t sizeClass) {
  BlockStore::Get().Fill(list, sizeClass);
}
[[gnu::noinline]] void GiveSurplus(FreeList& list, std::size_t sizeClass) noexcept {
  BlockStore::Get().Take(list, sizeClass, kBatch);
}

void* TakeFrom(FreeList& list, std::size_t sizeClass) {
  if (list.count == 0) Refill(list, sizeClass);
  return list.Pop();
}

/// For destructors that run after the thread's own blocks are gone.
[[gnu::noinline]] void* TakeFromStore(std::size_t sizeClass) {
  FreeList list;
  void* const block = TakeFrom(list, sizeClass);
  BlockStore::Get().Take(list, sizeClass, list.count);
  return block;
}

[[gnu::noinline]] void GiveToStore(void* block, std::size_t sizeClass) noexcept {
  FreeList list;
  list.Push(block);
  BlockStore::Get().Take(list, sizeClass, 1);
}

}  // namespace

void* TakeBlock(std::size_t bytes) {
  if (bytes > kLargestRecycledBlock) return TakeLargerBlock(bytes);
  const std::size_t sizeClass = ClassOf(bytes);
  if (threadBlocksAreGone) return TakeFromStore(sizeClass);
  return TakeFrom(threadBlocks.lists[sizeClass], sizeClass);
}

void GiveBlockBack(void* block, std::size_t bytes) noexcept {
  if (bytes > kLargestRecycledBlock) return GiveLargerBlockBack(block, bytes);
  const std::size_t sizeClass = ClassOf(bytes);
  if (threadBlocksAreGone) return GiveToStore(block, sizeClass);
  FreeList& list = threadBlocks.lists[sizeClass];
  list.Push(block);
  if (list.count > kKept) GiveSurplus(list, sizeClass);
}

#endif

}  // namespace standalone
