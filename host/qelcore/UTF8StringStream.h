#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

#include "host/HostAPI.h"

namespace qelcore {

/// An output stream of UTF-8 bytes in memory. It formats nothing, so no locale touches it. Made for
/// long texts, in memory of the host's recycling allocator. One thread at a time. Throws:
/// std::bad_alloc.
class HOST_API oUTF8StringStream {
 public:
  oUTF8StringStream();
  ~oUTF8StringStream();
  oUTF8StringStream(const oUTF8StringStream&) = delete;
  oUTF8StringStream& operator=(const oUTF8StringStream&) = delete;

  oUTF8StringStream& operator<<(std::string_view bytes) {
    if (bytes.empty()) return *this;
    if (bytes.size() > capacity - size) Grow(bytes.size());
    std::memcpy(text + size, bytes.data(), bytes.size());
    size += bytes.size();
    return *this;
  }
  oUTF8StringStream& operator<<(char byte) {
    if (size == capacity) Grow(1);
    text[size++] = byte;
    return *this;
  }

  /// Makes room for so many bytes in all, so that a text is not copied while it grows to them.
  void Reserve(std::size_t bytes);

  /// All bytes written so far; valid until the next write.
  std::string_view str() const noexcept { return {text, size}; }

 private:
  /// Makes room for so many bytes more.
  void Grow(std::size_t bytes);
  void MoveTo(std::size_t room);

  char* text = nullptr;
  std::size_t size = 0;
  std::size_t capacity = 0;
};

}  // namespace qelcore
