#include "table/RowsAtTime.h"

#include <algorithm>

namespace Vantrel {

using qelmediatypes::TickTime;

std::size_t CountRowsStartedBy(const TrackItemDataList& rows, TickTime time) noexcept {
  const auto firstLater =
      std::upper_bound(rows.begin(), rows.end(), time,
                       [](TickTime wanted, const TrackItemRowData& row) { return wanted < row.start; });
  return static_cast<std::size_t>(firstLater - rows.begin());
}

// Every one of them is looked at: a long clip may have started far above the rows around it.
std::vector<std::size_t> FindRowsAtTime(const TrackItemDataList& rows, TickTime time) {
  std::vector<std::size_t> positions;
  const std::size_t started = CountRowsStartedBy(rows, time);
  for (std::size_t i = 0; i < started; ++i) {
    if (time < rows[i].end) positions.push_back(i);
  }
  return positions;
}

}  // namespace Vantrel
