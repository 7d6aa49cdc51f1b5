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

void NumberRows(TrackItemDataList& rows) noexcept {
  std::uint64_t index = 0;
  for (TrackItemRowData& row : rows) row.index = index++;
}

}  // namespace

void OrderAndNumberRows(TrackItemDataList& rows) {
  auto keys = MakeKeys(rows);
  if (std::ranges::is_sorted(keys, RowOrderLess())) return NumberRows(rows);
  SortRowOrderKeys(keys);
  PlaceRows(rows, keys);
}

}  // namespace Vantrel
