#include "standalone/toolkit/RowStore.h"

#include <cstdint>

#include "host/qelcore/Exceptions.h"

namespace standalone {

namespace {

constexpr std::size_t kChunkSize = 65536;

struct ChunkHeader {
  const RowStore* owner;
  /// The position of the chunk's first row.
  std::size_t base;
};

constexpr std::size_t kRowsInChunk = kChunkSize - sizeof(ChunkHeader);

[[noreturn]] void ThrowForeignRow() {
  throw qelcore::config::qel_exception(qelcore::config::ExceptionKind::kGeneric,
                                       "The row does not belong to this tree", {});
}

}  // namespace

struct alignas(kChunkSize) RowStore::Chunk {
  ChunkHeader header;
  Row rows[kRowsInChunk];
};

RowStore::RowStore() = default;
RowStore::~RowStore() = default;

void RowStore::EnterChunk() {
  static_assert(sizeof(Row) == 1 && sizeof(Chunk) == kChunkSize);
  if (count == chunks.size() * kRowsInChunk) {
    chunks.push_back(std::make_unique_for_overwrite<Chunk>());
    chunks.back()->header = {this, count};
  }
  nextRow = chunks[count / kRowsInChunk]->rows;
  chunkEnd = nextRow + kRowsInChunk;
}

RowStore::Row* RowStore::At(std::size_t position) const noexcept {
  if (position >= count) return nullptr;
  return &chunks[position / kRowsInChunk]->rows[position % kRowsInChunk];
}

std::size_t RowStore::IndexOf(const Row* row) const {
  if (row == nullptr) ThrowForeignRow();
  const auto address = reinterpret_cast<std::uintptr_t>(row);
  const auto* const chunk = reinterpret_cast<const Chunk*>(address & ~(kChunkSize - 1));
  const std::size_t position = chunk->header.base + static_cast<std::size_t>(row - chunk->rows);
  if (chunk->header.owner != this || position >= count) ThrowForeignRow();
  return position;
}

}  // namespace standalone
