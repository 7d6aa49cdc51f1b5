#pragma once

#include <cstdlib>
#include <limits>
#include <new>

#include "support/AllocationFault.h"

// Allocation with faults: definitions, for exactly one source of a test program.

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

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return size >= failingSize ? nullptr : std::malloc(size == 0 ? 1 : size);
}
void* operator new(std::size_t size) {
  if (void* const block = operator new(size, std::nothrow)) return block;
  throw std::bad_alloc();
}
void operator delete(void* block) noexcept {
  std::free(block);
}
void operator delete(void* block, std::size_t) noexcept {
  std::free(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
  std::free(block);
}
