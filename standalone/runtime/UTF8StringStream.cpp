#include "host/qelcore/UTF8StringStream.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

#include "host/qelcore/Shareable.h"

namespace qelcore {

oUTF8StringStream::oUTF8StringStream() = default;
oUTF8StringStream::~oUTF8StringStream() {
  if (text != nullptr) memory::RecyclingFree(text, capacity);
}

void oUTF8StringStream::Reserve(std::size_t bytes) {
  if (bytes > capacity) MoveTo(bytes);
}

void oUTF8StringStream::Grow(std::size_t bytes) {
  constexpr std::size_t kHighest = std::numeric_limits<std::size_t>::max() / 4;
  constexpr std::size_t kStep = std::size_t{64} << 10U;
  if (bytes > kHighest - size) throw std::bad_alloc();
  MoveTo(std::max(2 * capacity, (size + bytes + kStep - 1) / kStep * kStep));
}

void oUTF8StringStream::MoveTo(std::size_t room) {
  auto* const block = static_cast<char*>(memory::RecyclingAllocate(room));
  if (text != nullptr) {
    std::memcpy(block, text, size);
    memory::RecyclingFree(text, capacity);
  }
  text = block;
  capacity = room;
}

}  // namespace qelcore
