#pragma once

#include <cstddef>

namespace standalone {

/// Asks the memory for an object that will be read soon, and does not wait for it. Null asks for
/// nothing.
template <typename T>
void RequestMemory(const T* object) noexcept {
  if (object == nullptr) return;
  constexpr std::size_t kCacheLine = 64;
  const auto* const bytes = reinterpret_cast<const unsigned char*>(object);
  for (std::size_t at = 0; at < sizeof(T); at += kCacheLine) __builtin_prefetch(bytes + at);
}

}  // namespace standalone
