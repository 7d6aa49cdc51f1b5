#pragma once

#include <atomic>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

#include "host/HostAPI.h"

namespace qelcore {

/// The host's byte string: immutable text in UTF-8, shared by counting.
///
/// Most texts of a table repeat or are empty, and rows are copied several times for each refresh.
/// So a string is one pointer to a counted buffer from the host's recycling allocator; the empty
/// text is a null pointer, and a copy is one increment. Build texts in a `std::string` and convert
/// once. Zero bytes are ordinary content.
///
/// Threads: [any-thread] for distinct objects; the count is atomic, the bytes never change.
class HOST_API UTF8String {
 public:
  UTF8String() noexcept = default;

  /// Copies `text`. Throws: std::bad_alloc; std::length_error above 4294967295 bytes.
  explicit UTF8String(std::string_view text);

  UTF8String(const UTF8String& other) noexcept : buffer(other.buffer) {
    if (buffer != nullptr) buffer->count.fetch_add(1, std::memory_order_relaxed);
  }
  UTF8String(UTF8String&& other) noexcept : buffer(std::exchange(other.buffer, nullptr)) {}
  UTF8String& operator=(const UTF8String& other) noexcept {
    UTF8String copy(other);
    std::swap(buffer, copy.buffer);
    return *this;
  }
  UTF8String& operator=(UTF8String&& other) noexcept {
    std::swap(buffer, other.buffer);
    return *this;
  }
  ~UTF8String() {
    if (buffer != nullptr && buffer->count.fetch_sub(1, std::memory_order_acq_rel) == 1) {
      DestroyBuffer(buffer);
    }
  }

  /// The bytes; valid while this string, or another one that shares its buffer, lives unchanged.
  std::string_view View() const noexcept {
    return buffer == nullptr ? std::string_view() : std::string_view(buffer->Bytes(), buffer->size);
  }
  operator std::string_view() const noexcept { return View(); }

  std::size_t Size() const noexcept { return buffer == nullptr ? 0 : buffer->size; }
  bool Empty() const noexcept { return buffer == nullptr; }

  /// True when both strings are the same buffer, which costs no look at the bytes.
  bool SharesBufferWith(const UTF8String& other) const noexcept { return buffer == other.buffer; }

  friend bool operator==(const UTF8String& left, const UTF8String& right) noexcept {
    return left.buffer == right.buffer || left.View() == right.View();
  }
  friend bool operator==(const UTF8String& left, std::string_view right) noexcept {
    return left.View() == right;
  }
  /// Byte-wise order on unsigned bytes; a prefix stands before what it begins.
  friend std::strong_ordering operator<=>(const UTF8String& left, const UTF8String& right) noexcept {
    return left.View() <=> right.View();
  }

 private:
  struct Buffer {
    std::atomic<std::uint32_t> count;
    std::uint32_t size;
    char* Bytes() noexcept { return reinterpret_cast<char*>(this + 1); }
  };
  static void DestroyBuffer(Buffer* last) noexcept;

  Buffer* buffer = nullptr;
};

}  // namespace qelcore
