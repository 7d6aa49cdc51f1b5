#include "table/RowOrder.h"

#include <utility>

#include "data/GapRow.h"

namespace Vantrel {

namespace {

RowOrderKeys MakeKeys(const TrackItemDataList& rows, bool isKeepingGaps) {
  RowOrderKeys keys;
  keys.reserve(rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const TrackItemRowData& row = rows[i];
    if (isKeepingGaps || !IsGapRow(row)) keys.push_back({row.start, row.mediaType, row.trackIndex, i});
  }
  return keys;
}

// Into a new list, which is written from the first row to the last and reads as many places of the old
// one as there are tracks. Moving rows within their list would jump to and fro for each of them.
void PlaceRows(TrackItemDataList& rows, const RowOrderKeys& keys) {
  TrackItemDataList ordered;
  ordered.reserve(keys.size());
  for (const RowOrderKey& key : keys) {
    ordered.push_back(std::move(rows[key.position]));
    ordered.back().index = ordered.size() - 1;
  }
  rows = std::move(ordered);
}

bool AreInPlace(const TrackItemDataList& rows, const RowOrderKeys& keys) noexcept {
  if (keys.size() != rows.size()) return false;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (keys[i].position != i) return false;
  }
  return true;
}

void NumberRows(TrackItemDataList& rows) noexcept {
  std::uint64_t index = 0;
  for (TrackItemRowData& row : rows) row.index = index++;
}

}  // namespace

RowOrderKeys FindRowOrder(const TrackItemDataList& rows, bool isKeepingGaps) {
  auto keys = MakeKeys(rows, isKeepingGaps);
  SortRowOrderKeys(keys);
  return keys;
}

void OrderAndNumberRows(TrackItemDataList& rows, bool isKeepingGaps) {
  const RowOrderKeys keys = FindRowOrder(rows, isKeepingGaps);
  if (AreInPlace(rows, keys)) return NumberRows(rows);
  PlaceRows(rows, keys);
}

}  // namespace Vantrel
