#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <utility>
#include <vector>

namespace standalone {

/// A growing row of objects that never move: they are built in place, in blocks, and are found by their
/// index in constant time. Grows on one thread; afterwards read from any.
template <typename T>
class NodeStore {
 public:
  NodeStore() = default;
  NodeStore(const NodeStore&) = delete;
  NodeStore& operator=(const NodeStore&) = delete;
  ~NodeStore() {
    for (std::size_t index = 0; index < count; ++index) std::destroy_at(&(*this)[index]);
  }

  template <typename... Arguments>
  T& Add(Arguments&&... arguments) {
    if (count == blocks.size() * kBlockSize) blocks.push_back(std::make_unique<Block>());
    T* const node =
        ::new (AddressOf(count)) T(std::forward<Arguments>(arguments)...);  // NOLINT: destroyed above
    ++count;
    return *node;
  }

  std::size_t Size() const noexcept { return count; }
  T& operator[](std::size_t index) const noexcept {
    return *std::launder(static_cast<T*>(AddressOf(index)));
  }

 private:
  static constexpr std::size_t kBlockSize = 64;
  struct Block {
    alignas(T) std::byte bytes[kBlockSize * sizeof(T)];
  };

  void* AddressOf(std::size_t index) const noexcept {
    return blocks[index / kBlockSize]->bytes + index % kBlockSize * sizeof(T);
  }

  std::vector<std::unique_ptr<Block>> blocks;
  std::size_t count = 0;
};

}  // namespace standalone
