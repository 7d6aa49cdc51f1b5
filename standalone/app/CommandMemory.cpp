#include "standalone/app/CommandMemory.h"

#include <malloc.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <limits>

#include "standalone/runtime/LargePages.h"

namespace standalone {

namespace {

/// The most that the allocator takes for this limit; larger blocks always go back at once.
constexpr int kLargestKeptBlock = 32 * 1024 * 1024;
constexpr std::size_t kSmallPage = 4096;
/// What the heap begins with: about what a thousand clips take.
constexpr std::size_t kFirstHeapBytes = 4 * kLargePage;

/// Lets the heap grow from a small page before a large one: a large page is taken only where nothing
/// has been touched, and the allocator writes to the beginning of a block.
void AlignHeap() {
  const std::uintptr_t end = reinterpret_cast<std::uintptr_t>(sbrk(0)) + kSmallPage;
  sbrk(static_cast<std::intptr_t>(kLargePage - end % kLargePage));
}

/// What is given back at the heap's end is what is taken next.
void PutHeapOnLargePages() {
  AlignHeap();
  constexpr std::size_t kBytes = kFirstHeapBytes + 2 * kSmallPage;
  void* const memory = std::malloc(kBytes);
  PreferLargePages(memory, kBytes);
  std::free(memory);
}

}  // namespace

void KeepMemoryBetweenSteps() {
  mallopt(M_MMAP_THRESHOLD, kLargestKeptBlock);
  mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
  mallopt(M_ARENA_MAX, 1);
  PutHeapOnLargePages();
}

}  // namespace standalone
