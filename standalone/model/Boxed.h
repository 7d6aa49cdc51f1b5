#pragma once

#include <concepts>
#include <memory>
#include <utility>

namespace standalone {

/// A value that is mostly missing: it takes one pointer then, where a std::optional takes its whole
/// room. Otherwise it is used like one, and copied like a value.
template <typename T>
class Boxed {
 public:
  Boxed() noexcept = default;
  Boxed(T given) : value(std::make_unique<T>(std::move(given))) {}  // NOLINT: a value of its type
  Boxed(const Boxed& other) : value(other ? std::make_unique<T>(*other) : nullptr) {}
  Boxed(Boxed&&) noexcept = default;
  Boxed& operator=(const Boxed& other) {
    value = other ? std::make_unique<T>(*other) : nullptr;
    return *this;
  }
  Boxed& operator=(Boxed&&) noexcept = default;
  /// A template, so that `= {}` empties the box instead of storing an empty value.
  template <std::same_as<T> Given = T>
  Boxed& operator=(Given&& given) {
    emplace(std::forward<Given>(given));
    return *this;
  }
  ~Boxed() = default;

  template <typename... Arguments>
  T& emplace(Arguments&&... arguments) {
    value = std::make_unique<T>(std::forward<Arguments>(arguments)...);
    return *value;
  }
  void reset() noexcept { value.reset(); }

  bool has_value() const noexcept { return value != nullptr; }
  explicit operator bool() const noexcept { return has_value(); }

  T& operator*() noexcept { return *value; }
  const T& operator*() const noexcept { return *value; }
  T* operator->() noexcept { return value.get(); }
  const T* operator->() const noexcept { return value.get(); }

 private:
  std::unique_ptr<T> value;
};

}  // namespace standalone
