#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace Vantrel {

/// Texts that stay, side by side in the order in which they were added: what is read together lies
/// together. One thread at a time.
class TextArena {
 public:
  /// So many bytes behind each text may be read, whatever they are.
  static constexpr std::size_t kBytesBehind = 32;

  /// A copy that stays where it is until all are forgotten; its data is never null.
  std::string_view Add(std::string_view text) {
    if (blocks.empty() || text.size() > left) AddBlock(std::max(text.size(), kBlockSize));
    char* const copy = next;
    next = std::copy(text.begin(), text.end(), copy);
    left -= text.size();
    return {copy, text.size()};
  }

  void Forget() noexcept {
    blocks.clear();
    left = 0;
  }

 private:
  static constexpr std::size_t kBlockSize = std::size_t{64} << 10U;

  void AddBlock(std::size_t size) {
    blocks.push_back(std::make_unique_for_overwrite<char[]>(size + kBytesBehind));
    next = blocks.back().get();
    left = size;
  }

  std::vector<std::unique_ptr<char[]>> blocks;
  char* next = nullptr;
  std::size_t left = 0;
};

}  // namespace Vantrel
