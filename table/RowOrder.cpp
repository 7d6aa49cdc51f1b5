#include "table/RowOrder.h"

#include <utility>

namespace Vantrel {

namespace {

std::vector<RowOrderKey> MakeKeys(const TrackItemDataList& rows) {
  std::vector<RowOrderKey> keys;
  keys.reserve(rows.size());
  for (const TrackItemRowData& row : rows) {
    keys.push_back({row.start, row.mediaType, row.trackIndex, keys.size()});
  }
  return keys;
}

// Follows one cycle of the permutation: the row at `first` is lifted out, every further row moves once
// into the hole before it, and the lifted one fills the last hole.
void PlaceCycle(TrackItemDataList& rows, std::vector<RowOrderKey>& keys, std::size_t first) {
  TrackItemRowData lifted = std::move(rows[first]);
  std::size_t hole = first;
  for (;;) {
    const std::size_t source = std::exchange(keys[hole].position, hole);
    if (source == first) break;
    rows[hole] = std::move(rows[source]);
    hole = source;
  }
  rows[hole] = std::move(lifted);
}

// `keys[i].position` is where the row for place i stands.
void PlaceRows(TrackItemDataList& rows, std::vector<RowOrderKey>& keys) {
  for (std::size_t place = 0; place < rows.size(); ++place) {
    if (keys[place].position != place) PlaceCycle(rows, keys, place);
  }
}

}  // namespace

void OrderAndNumberRows(TrackItemDataList& rows) {
  auto keys = MakeKeys(rows);
  SortRowOrderKeys(keys);
  PlaceRows(rows, keys);
  std::uint64_t index = 0;
  for (TrackItemRowData& row : rows) row.index = index++;
}

}  // namespace Vantrel
