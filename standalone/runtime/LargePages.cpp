#include "standalone/runtime/LargePages.h"

#include <sys/mman.h>

#include <memory>

namespace standalone {

void PreferLargePages(void* memory, std::size_t length) noexcept {
  if (length < 2 * kLargePage) return;
  // Only whole ones, so that no memory around them is concerned.
  void* const first = std::align(kLargePage, kLargePage, memory, length);
  if (first != nullptr) madvise(first, length / kLargePage * kLargePage, MADV_HUGEPAGE);
}

}  // namespace standalone
