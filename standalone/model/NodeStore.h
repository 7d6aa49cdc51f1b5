#pragma once

#include <bit>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "host/qelcore/Shareable.h"

namespace standalone {

/// A growing row of objects that never move: they are built in place, in blocks, and are found by their
/// index in constant time. Each block has room for twice as many as the one before, so that a short
/// timeline takes little memory, and a long one lies in few large pieces. Grows on one thread;
/// afterwards read from any.
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
    if (count == FirstOfBlock(blocks.size())) AddBlock();
    T* const node =
        ::new (AddressOf(count)) T(std::forward<Arguments>(arguments)...);  // NOLINT: destroyed above
    ++count;
    return *node;
  }

  std::size_t Size() const noexcept { return count; }
  T& operator[](std::size_t index) const noexcept { return *std::launder(AddressOf(index)); }

 private:
  static constexpr std::size_t kFirstBlockSize = 64;
  static_assert(alignof(T) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__);

  static constexpr std::size_t SizeOfBlock(std::size_t block) noexcept {
    return kFirstBlockSize << block;
  }
  /// How many nodes stand in the blocks before.
  static constexpr std::size_t FirstOfBlock(std::size_t block) noexcept {
    return SizeOfBlock(block) - kFirstBlockSize;
  }
  static constexpr std::size_t BlockOf(std::size_t index) noexcept {
    return static_cast<std::size_t>(std::bit_width(index / kFirstBlockSize + 1)) - 1;
  }

  struct GiveBack {
    std::size_t bytes;
    void operator()(T* block) const noexcept { qelcore::memory::RecyclingFree(block, bytes); }
  };

  void AddBlock() {
    const std::size_t bytes = SizeOfBlock(blocks.size()) * sizeof(T);
    blocks.reserve(blocks.size() + 1);
    blocks.emplace_back(static_cast<T*>(qelcore::memory::RecyclingAllocate(bytes)), GiveBack{bytes});
  }

  T* AddressOf(std::size_t index) const noexcept {
    const std::size_t block = BlockOf(index);
    return blocks[block].get() + (index - FirstOfBlock(block));
  }

  std::vector<std::unique_ptr<T, GiveBack>> blocks;
  std::size_t count = 0;
};

}  // namespace standalone
