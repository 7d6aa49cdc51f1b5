#pragma once

#include <cstddef>

/// Makes allocations of at least `size` bytes fail on this thread as long as it lives. For programs
/// of which one source includes AllocationFaultOperators.h, whose operator new takes the place of the
/// library's.
class AllocationFault {
 public:
  explicit AllocationFault(std::size_t size) noexcept;
  ~AllocationFault();
  AllocationFault(const AllocationFault&) = delete;
  AllocationFault& operator=(const AllocationFault&) = delete;
};
