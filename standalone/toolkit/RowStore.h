#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "host/qelui/MultiColumnTree.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace qelui::controls {

/// A row has an address and nothing else.
class UI_MultiColumnTreeRow {};

}  // namespace qelui::controls

namespace standalone {

/// The rows of one tree. A row is a single byte of a chunk whose address is a multiple of its size, so
/// that the chunk of a row, and with it the row's position, follow from the row's address alone. Rows
/// are appended and cleared without touching them; chunks are kept for the rows to come. [main-thread]
class STANDALONE_API RowStore {
 public:
  using Row = qelui::controls::UI_MultiColumnTreeRow;

  RowStore();
  ~RowStore();
  RowStore(const RowStore&) = delete;
  RowStore& operator=(const RowStore&) = delete;

  std::size_t Count() const noexcept { return count; }
  Row* Append() {
    if (nextRow == chunkEnd) EnterChunk();
    ++count;
    return nextRow++;
  }
  void Clear() noexcept {
    count = 0;
    nextRow = chunkEnd = nullptr;
  }

  /// The row at a position, or null.
  Row* At(std::size_t position) const noexcept;
  /// The position of a row. Throws: qel_exception when it is null or a row of another store, or was
  /// cleared.
  std::size_t IndexOf(const Row* row) const;

 private:
  struct Chunk;

  /// Goes on with the chunk that follows the rows so far.
  void EnterChunk();

  std::vector<std::unique_ptr<Chunk>> chunks;
  std::size_t count = 0;
  /// The rows that the chunk in use has left: a million are appended at a time.
  Row* nextRow = nullptr;
  Row* chunkEnd = nullptr;
};

}  // namespace standalone
