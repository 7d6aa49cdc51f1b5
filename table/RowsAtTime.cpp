#include "table/RowsAtTime.h"

#include <algorithm>

namespace Vantrel {

namespace {

using qelmediatypes::TickTime;

/// So many that the ends of all blocks of a million rows fit the processor's nearest memory, and so few
/// that looking through one block costs no more than looking through those.
constexpr std::size_t kRowsInBlock = 256;

}  // namespace

std::size_t CountRowsStartedBy(const TrackItemDataList& rows, TickTime time) noexcept {
  const auto firstLater =
      std::upper_bound(rows.begin(), rows.end(), time,
                       [](TickTime wanted, const TrackItemRowData& row) { return wanted < row.start; });
  return static_cast<std::size_t>(firstLater - rows.begin());
}

LatestEnds::LatestEnds(const TrackItemDataList& rows)
    : ends((rows.size() + kRowsInBlock - 1) / kRowsInBlock, TickTime::Lowest()) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    TickTime& end = ends[i / kRowsInBlock];
    end = std::max(end, rows[i].end);
  }
}

// Every block that reaches the time is looked at, however far above it stands: a long clip may have
// started there.
std::vector<std::size_t> LatestEnds::FindRowsAtTime(const TrackItemDataList& rows,
                                                    TickTime time) const {
  std::vector<std::size_t> positions;
  const std::size_t started = CountRowsStartedBy(rows, time);
  for (std::size_t first = 0; first < started; first += kRowsInBlock) {
    if (ends[first / kRowsInBlock] <= time) continue;
    const std::size_t behind = std::min(first + kRowsInBlock, started);
    for (std::size_t i = first; i < behind; ++i) {
      if (time < rows[i].end) positions.push_back(i);
    }
  }
  return positions;
}

}  // namespace Vantrel
