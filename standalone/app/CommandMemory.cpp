#include "standalone/app/CommandMemory.h"

#include <malloc.h>

#include <limits>

namespace standalone {

namespace {
/// The most that the allocator takes for this limit; larger blocks always go back at once.
constexpr int kLargestKeptBlock = 32 * 1024 * 1024;
}  // namespace

void KeepMemoryBetweenSteps() {
  mallopt(M_MMAP_THRESHOLD, kLargestKeptBlock);
  mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
  mallopt(M_ARENA_MAX, 1);
}

}  // namespace standalone
