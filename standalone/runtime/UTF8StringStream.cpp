#include "host/qelcore/UTF8StringStream.h"

#include <sys/mman.h>

#include <algorithm>
#include <limits>
#include <new>

#include "standalone/runtime/LargePages.h"

namespace qelcore {
namespace {

constexpr std::size_t kStep = std::size_t{64} << 10U;

/// Whole pages from the system, so that they can be moved to where there is more room.
void* Map(void* block, std::size_t bytes, std::size_t wanted) {
  if (block != nullptr) return mremap(block, bytes, wanted, MREMAP_MAYMOVE);
  return mmap(nullptr, wanted, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
}

}  // namespace

oUTF8StringStream::oUTF8StringStream() = default;
oUTF8StringStream::~oUTF8StringStream() {
  if (text != nullptr) munmap(text, capacity);
}

void oUTF8StringStream::Grow(std::size_t bytes) {
  constexpr std::size_t kHighest = std::numeric_limits<std::size_t>::max() / 4;
  if (bytes > kHighest - size) throw std::bad_alloc();
  const std::size_t wanted = std::max(2 * capacity, (size + bytes + kStep - 1) / kStep * kStep);
  void* const block = Map(text, capacity, wanted);
  if (block == MAP_FAILED) throw std::bad_alloc();
  text = static_cast<char*>(block);
  capacity = wanted;
  // As a whole: the system moves no memory of which parts are treated differently.
  if (capacity >= 2 * standalone::kLargePage) madvise(block, capacity, MADV_HUGEPAGE);
}

}  // namespace qelcore
