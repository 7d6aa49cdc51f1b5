#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <utility>

#include "host/HostAPI.h"
#include "host/qelcore/Exceptions.h"
#include "host/qelcore/TypeName.h"

namespace qelcore {

/// Anything that is counted in itself. The count is atomic. [any-thread]
class HOST_API ICounted {
 public:
  virtual void AddRef() const noexcept = 0;
  /// Gives one reference back; the last one destroys the object (where and how is its own affair).
  virtual void Release() const noexcept = 0;

 protected:
  virtual ~ICounted();
};

template <typename T>
class Borrowed;

/// Owning pointer to an object with AddRef() and Release().
template <typename T>
class Ref {
 public:
  Ref() noexcept = default;
  Ref(std::nullptr_t) noexcept {}
  explicit Ref(T* object) noexcept : object(object) { Acquire(); }
  Ref(const Ref& other) noexcept : object(other.object) { Acquire(); }
  Ref(Ref&& other) noexcept : object(std::exchange(other.object, nullptr)) {}
  template <typename U>
  requires std::is_convertible_v<U*, T*> Ref(const Ref<U>& other)
  noexcept : object(other.Get()) { Acquire(); }
  template <typename U>
  requires std::is_convertible_v<U*, T*> Ref(Borrowed<U> other)
  noexcept : object(other.Get()) { Acquire(); }
  ~Ref() {
    if (object != nullptr) object->Release();
  }
  Ref& operator=(Ref other) noexcept {
    std::swap(object, other.object);
    return *this;
  }

  T* Get() const noexcept { return object; }
  T* operator->() const noexcept { return object; }
  T& operator*() const noexcept { return *object; }
  explicit operator bool() const noexcept { return object != nullptr; }
  void Reset() noexcept { *this = Ref(); }

  /// Takes over a reference that was already added for the caller.
  static Ref Adopt(T* added) noexcept {
    Ref result;
    result.object = added;
    return result;
  }

  friend bool operator==(const Ref& left, const Ref& right) noexcept {
    return left.object == right.object;
  }
  friend bool operator==(const Ref& left, std::nullptr_t) noexcept { return left.object == nullptr; }

 private:
  void Acquire() const noexcept {
    if (object != nullptr) object->AddRef();
  }
  T* object = nullptr;
};

/// Names an interface: a 64-bit FNV-1a hash of its qualified name, made at compile time.
struct InterfaceID {
  std::uint64_t value = 0;
  friend constexpr bool operator==(InterfaceID, InterfaceID) = default;
};

consteval InterfaceID MakeInterfaceID(std::string_view qualifiedName) {
  std::uint64_t hash = 14695981039346656037ULL;
  for (const char byte : qualifiedName) {
    hash = (hash ^ static_cast<unsigned char>(byte)) * 1099511628211ULL;
  }
  return {hash};
}

/// The base of every interface of the host's model. An interface declares its own
/// `static constexpr InterfaceID kInterfaceID`.
class HOST_API IUnknown : public ICounted {
 public:
  /// A pointer to this object's interface of that id (a `T*` for `T::kInterfaceID`), or null. Adds no
  /// reference; the pointer is valid as long as the object. [any-thread]
  virtual void* QueryInterface(InterfaceID id) noexcept = 0;

 protected:
  ~IUnknown() override;
};

/// The interface `To` of an object, or null; borrowed. An empty object has none. [any-thread]
template <typename To>
To* FindInterface(IUnknown* object) noexcept {
  return object == nullptr ? nullptr : static_cast<To*>(object->QueryInterface(To::kInterfaceID));
}

/// The interface `To` of an object, owned, or empty. [any-thread]
template <typename To, typename From>
Ref<To> QueryInterface(const Ref<From>& object) noexcept {
  return Ref<To>(FindInterface<To>(object.Get()));
}

/// Raises the host's null-pointer error with the type's plain name ("BE::INotification").
template <typename T>
[[noreturn]] void ThrowMissing() {
  config::DoThrowNullPtrException(debug::GetTypeName(typeid(T)));
}

/// The interface `To` of an object; raises the host's null-pointer error naming `To` when the object
/// is empty or lacks it. [any-thread]
template <typename To, typename From>
Ref<To> RequireInterface(const Ref<From>& object) {
  To* const found = FindInterface<To>(object.Get());
  if (found == nullptr) ThrowMissing<To>();
  return Ref<To>(found);
}

/// The object of a required reference; raises the host's null-pointer error naming `T` when empty.
template <typename T>
T& Required(const Ref<T>& reference) {
  if (!reference) ThrowMissing<T>();
  return *reference;
}

}  // namespace qelcore
