#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <span>

#include "data/TrackItemRowData.h"

namespace Vantrel {

/// The rows of a list, handed out in blocks to two threads: to one from the top, to the other from the
/// bottom, until they meet. Whichever is faster does more, and what each writes stands in order.
class RowBlocks {
 public:
  using Rows = std::span<const TrackItemRowData>;
  static constexpr std::size_t kRowsOfBlock = 1024;

  explicit RowBlocks(Rows rows) : rows(rows), count((rows.size() + kRowsOfBlock - 1) / kRowsOfBlock) {}

  std::size_t CountRows() const noexcept { return rows.size(); }

  /// The next block from the top, for one thread; empty when all blocks are taken.
  Rows TakeFromTop() noexcept { return Take() ? GetBlock(top++) : Rows(); }
  /// The next block from the bottom, for the other thread; empty when all blocks are taken.
  Rows TakeFromBottom() noexcept { return Take() ? GetBlock(count - ++bottom) : Rows(); }

 private:
  bool Take() noexcept { return taken.fetch_add(1, std::memory_order_relaxed) < count; }
  Rows GetBlock(std::size_t block) const noexcept {
    const std::size_t begin = block * kRowsOfBlock;
    return rows.subspan(begin, std::min(kRowsOfBlock, rows.size() - begin));
  }

  const Rows rows;
  const std::size_t count;
  std::atomic<std::size_t> taken = 0;
  std::size_t top = 0;
  std::size_t bottom = 0;
};

}  // namespace Vantrel
