#pragma once

#include <cstddef>
#include <memory>
#include <utility>

#include "host/HostAPI.h"

namespace qelcore::memory {

/// The host's recycling allocator: freed blocks are kept by size and handed out again. [any-thread]
/// Throws: std::bad_alloc.
HOST_API void* RecyclingAllocate(std::size_t bytes);
HOST_API void RecyclingFree(void* block, std::size_t bytes) noexcept;

/// Base of objects that the host holds by shared pointer (handlers, tab views). Memory comes from the
/// recycling allocator, and the control block is made by host code, so an expired weak pointer that
/// the host still keeps never needs the module that defined the class.
///
/// Create with MakeShareable. An object can hand out shared and weak pointers to itself once it is
/// owned, not yet in its constructor.
class HOST_API Shareable : public std::enable_shared_from_this<Shareable> {
 public:
  Shareable(const Shareable&) = delete;
  Shareable& operator=(const Shareable&) = delete;
  virtual ~Shareable();

  static void* operator new(std::size_t bytes);
  static void operator delete(void* block, std::size_t bytes) noexcept;

  /// A shared pointer to `self`, which is `*this` seen as its own class.
  template <typename T>
  static std::shared_ptr<T> SharedFrom(T* self) {
    return std::shared_ptr<T>(self->shared_from_this(), self);
  }

 protected:
  Shareable();
};

/// Puts a new object under shared ownership; the control block is the host's. Takes `object`.
/// [any-thread]
HOST_API std::shared_ptr<Shareable> AdoptShareable(Shareable* object);

template <typename T, typename... Arguments>
std::shared_ptr<T> MakeShareable(Arguments&&... arguments) {
  T* const object = new T(std::forward<Arguments>(arguments)...);
  return std::shared_ptr<T>(AdoptShareable(object), object);
}

}  // namespace qelcore::memory
