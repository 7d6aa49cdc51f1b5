#include "table/RowOrder.h"

#include <utility>

namespace Vantrel {

namespace {

RowOrderKeys MakeKeys(const TrackItemDataList& rows) {
  RowOrderKeys keys;
  keys.reserve(rows.size());
  for (const TrackItemRowData& row : rows) {
    keys.push_back({row.start, row.mediaType, row.trackIndex, keys.size()});
  }
  return keys;
}

// Into a new list, which is written from the first row to the last and reads as many places of the old
// one as there are tracks. Moving rows within their list would jump to and fro for each of them.
void PlaceRows(TrackItemDataList& rows, const RowOrderKeys& keys) {
  TrackItemDataList ordered;
  ordered.reserve(rows.size());
  for (const RowOrderKey& key : keys) {
    ordered.push_back(std::move(rows[key.position]));
    ordered.back().index = ordered.size() - 1;
  }
  rows = std::move(ordered);
}

bool AreInPlace(const RowOrderKeys& keys) noexcept {
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

RowOrderKeys FindRowOrder(const TrackItemDataList& rows) {
  auto keys = MakeKeys(rows);
  SortRowOrderKeys(keys);
  return keys;
}

void OrderAndNumberRows(TrackItemDataList& rows) {
  const RowOrderKeys keys = FindRowOrder(rows);
  if (AreInPlace(keys)) return NumberRows(rows);
  PlaceRows(rows, keys);
}

}  // namespace Vantrel
