#pragma once

#include <cstddef>

#include "host/qelcore/Shareable.h"

namespace qelcore::memory {

/// The host's recycling allocator for containers of the standard library. Lists of a million rows come
/// and go with each keystroke; the host knows how the system hands out so much memory fastest.
/// [any-thread] Throws: std::bad_alloc.
template <typename T>
class RecyclingAllocator {
 public:
  using value_type = T;

  RecyclingAllocator() noexcept = default;
  template <typename U>
  explicit RecyclingAllocator(const RecyclingAllocator<U>&) noexcept {}

  T* allocate(std::size_t count) { return static_cast<T*>(RecyclingAllocate(count * sizeof(T))); }
  void deallocate(T* block, std::size_t count) noexcept { RecyclingFree(block, count * sizeof(T)); }

  /// What one has given, any other takes back.
  friend bool operator==(const RecyclingAllocator&, const RecyclingAllocator&) noexcept = default;
};

}  // namespace qelcore::memory
