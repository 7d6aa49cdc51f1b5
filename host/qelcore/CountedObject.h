#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>

#include "host/HostAPI.h"
#include "host/qelcore/Reference.h"

namespace qelcore {

/// A counted object that can also be held weakly. Its counts live in a block that host code makes and
/// frees, so a weak reference may outlive both the object and the module that defined its class.
///
/// Create with `Ref<T>(new T(...))`. Do not make a `Ref` to the object in its own constructor.
class HOST_API CountedObject {
 public:
  CountedObject(const CountedObject&) = delete;
  CountedObject& operator=(const CountedObject&) = delete;

  void AddRef() const noexcept;
  /// The last reference calls DeleteSelf(). [any-thread]
  void Release() const noexcept;

  /// The counts, opaque; shared by all weak references to this object.
  class Counts;
  Counts* GetCounts() const noexcept { return counts; }

 protected:
  CountedObject();
  virtual ~CountedObject();

  /// Destroys the object; runs on the thread that gave back the last reference. The base deletes at
  /// once; user-interface objects queue the deletion to the main thread.
  virtual void DeleteSelf() noexcept;

 private:
  Counts* counts;
};

namespace detail {
HOST_API void AddWeak(CountedObject::Counts* counts) noexcept;
HOST_API void ReleaseWeak(CountedObject::Counts* counts) noexcept;
/// Adds a strong reference unless the last one is gone. True: the caller owns one reference.
HOST_API bool TryAddStrong(CountedObject::Counts* counts) noexcept;
}  // namespace detail

/// Weak pointer to a CountedObject. [any-thread] for distinct objects.
template <typename T>
class WeakRef {
 public:
  WeakRef() noexcept = default;
  explicit WeakRef(T* object) noexcept
      : object(object), counts(object == nullptr ? nullptr : object->GetCounts()) {
    if (counts != nullptr) detail::AddWeak(counts);
  }
  WeakRef(const Ref<T>& reference) noexcept : WeakRef(reference.Get()) {}
  WeakRef(const WeakRef& other) noexcept : object(other.object), counts(other.counts) {
    if (counts != nullptr) detail::AddWeak(counts);
  }
  WeakRef(WeakRef&& other) noexcept
      : object(std::exchange(other.object, nullptr)), counts(std::exchange(other.counts, nullptr)) {}
  WeakRef& operator=(WeakRef other) noexcept {
    std::swap(object, other.object);
    std::swap(counts, other.counts);
    return *this;
  }
  ~WeakRef() {
    if (counts != nullptr) detail::ReleaseWeak(counts);
  }

  /// A strong reference, or an empty one when the object is gone or going.
  Ref<T> Lock() const noexcept {
    return counts != nullptr && detail::TryAddStrong(counts) ? Ref<T>::Adopt(object) : Ref<T>();
  }

 private:
  T* object = nullptr;
  CountedObject::Counts* counts = nullptr;
};

}  // namespace qelcore

namespace qelcore::utility {

namespace detail {
template <typename T>
Ref<T> LockWeak(const WeakRef<T>& weak) {
  return weak.Lock();
}
template <typename T>
std::shared_ptr<T> LockWeak(const std::weak_ptr<T>& weak) {
  return weak.lock();
}
}  // namespace detail

/// A function without arguments that calls `member` on the object only if it is still alive, holding
/// it strongly for the call. [any-thread]
template <typename Class, typename Weak>
std::function<void()> WeakBind(void (Class::*member)(), Weak weak) {
  return [member, weak = std::move(weak)] {
    if (const auto object = detail::LockWeak(weak)) ((*object).*member)();
  };
}

}  // namespace qelcore::utility
