#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Which rows of a table are selected: a bit for each position, and their count. Nothing is kept for
/// rows behind the last selected one, and clearing takes time for what was selected, not for the table.
/// Positions beyond the table are the caller's affair. [main-thread]
class STANDALONE_API RowSelection {
 public:
  bool Contains(std::size_t position) const noexcept;
  std::size_t Count() const noexcept { return count; }
  /// The selected positions, ascending.
  std::vector<std::size_t> GetPositions() const;
  /// Calls `function(position)` for each of them.
  template <typename Function>
  void ForEach(Function&& function) const {
    for (std::size_t word = 0; word < bits.size(); ++word) {
      for (std::uint64_t left = bits[word]; left != 0; left &= left - 1) {
        function(word * kWordBits + static_cast<std::size_t>(std::countr_zero(left)));
      }
    }
  }

  /// Each of these tells whether the selection is another one now.
  bool Add(std::size_t position);
  bool Remove(std::size_t position);
  /// Adds the positions from `first` to before `end`.
  bool AddRange(std::size_t first, std::size_t end);
  bool Clear() noexcept;

  friend STANDALONE_API bool operator==(const RowSelection& left, const RowSelection& right);

 private:
  static constexpr std::size_t kWordBits = 64;

  static constexpr std::uint64_t MakeBit(std::size_t position) noexcept {
    return std::uint64_t{1} << (position % kWordBits);
  }

  std::vector<std::uint64_t> bits;
  std::size_t count = 0;
};

}  // namespace standalone
