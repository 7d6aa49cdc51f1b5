#include "support/AllocationFault.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t kNoFault = std::numeric_limits<std::size_t>::max();
thread_local std::size_t failingSize = kNoFault;

}  // namespace

AllocationFault::AllocationFault(std::size_t size) noexcept {
  failingSize = size;
}
AllocationFault::~AllocationFault() {
  failingSize = kNoFault;
}

void* operator new(std::size_t size) {
  if (size >= failingSize) throw std::bad_alloc();
  if (void* const block = std::malloc(size == 0 ? 1 : size)) return block;
  throw std::bad_alloc();
}
void operator delete(void* block) noexcept {
  std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
  std::free(block);
}
