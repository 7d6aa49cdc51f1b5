#include "host/qelcore/UTF8String.h"

#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>

#include "host/qelcore/Shareable.h"

namespace qelcore {

UTF8String::UTF8String(std::string_view text) {
  if (text.empty()) return;
  if (text.size() > std::numeric_limits<std::uint32_t>::max()) {
    throw std::length_error("A text exceeds 4294967295 bytes");
  }
  void* const block = memory::RecyclingAllocate(sizeof(Buffer) + text.size());
  buffer = ::new (block) Buffer{1, static_cast<std::uint32_t>(text.size())};
  std::memcpy(buffer->Bytes(), text.data(), text.size());
}

void UTF8String::DestroyBuffer(Buffer* last) noexcept {
  const std::size_t bytes = sizeof(Buffer) + last->size;
  last->~Buffer();
  memory::RecyclingFree(last, bytes);
}

}  // namespace qelcore
