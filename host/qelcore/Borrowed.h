#pragma once

#include <cstddef>
#include <type_traits>

#include "host/qelcore/Reference.h"

namespace qelcore {

/// A counted object, or none, that somebody else keeps alive: as cheap as a pointer. It is valid as
/// long as the object it was asked of; whoever keeps it longer takes a Ref.
///
/// A table asks a dozen objects for each row. What a track item reaches lives as long as the item, so
/// that counting each of them up and down again would only cost time.
template <typename T>
class Borrowed {
 public:
  Borrowed() noexcept = default;
  Borrowed(std::nullptr_t) noexcept {}
  explicit Borrowed(T* object) noexcept : object(object) {}
  template <typename U>
  requires std::is_convertible_v<U*, T*> Borrowed(const Ref<U>& owner)
  noexcept : object(owner.Get()) {}
  template <typename U>
  requires std::is_convertible_v<U*, T*> Borrowed(Borrowed<U> other)
  noexcept : object(other.Get()) {}

  T* Get() const noexcept { return object; }
  T* operator->() const noexcept { return object; }
  T& operator*() const noexcept { return *object; }
  explicit operator bool() const noexcept { return object != nullptr; }

  friend bool operator==(Borrowed left, Borrowed right) noexcept { return left.object == right.object; }
  friend bool operator==(Borrowed left, const Ref<T>& right) noexcept {
    return left.object == right.Get();
  }
  friend bool operator==(Borrowed left, std::nullptr_t) noexcept { return left.object == nullptr; }

 private:
  T* object = nullptr;
};

/// The interface `To` of an object, or none. [any-thread]
template <typename To, typename From>
Borrowed<To> QueryInterface(Borrowed<From> object) noexcept {
  return Borrowed<To>(FindInterface<To>(object.Get()));
}

/// The interface `To` of an object; raises the host's null-pointer error naming `To` when there is no
/// object, or it lacks the interface. [any-thread]
template <typename To, typename From>
Borrowed<To> RequireInterface(Borrowed<From> object) {
  To* const found = FindInterface<To>(object.Get());
  if (found == nullptr) ThrowMissing<To>();
  return Borrowed<To>(found);
}

/// The object itself; raises the host's null-pointer error naming `T` when there is none.
template <typename T>
T& Required(Borrowed<T> object) {
  if (!object) ThrowMissing<T>();
  return *object;
}

}  // namespace qelcore
