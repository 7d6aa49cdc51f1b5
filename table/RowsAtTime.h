#pragma once

#include <cstddef>
#include <vector>

#include "data/TrackItemRowData.h"
#include "host/qelmediatypes/TickTime.h"

namespace Vantrel {

/// All take rows in the order of the table, which is by start. Times are of the sequence, without its
/// zero point. [any-thread]

/// How many rows, counted from the first, start at or before a time. Takes logarithmic time.
std::size_t CountRowsStartedBy(const TrackItemDataList& rows, qelmediatypes::TickTime time) noexcept;

/// When the rows of a list end at the latest, block by block. Made with the list, in one pass over it:
/// who looks for the rows at a time then skips the blocks that have ended by then, which are nearly all
/// of a million rows. Never changed afterwards.
class LatestEnds {
 public:
  /// Of an empty list.
  LatestEnds() noexcept = default;
  explicit LatestEnds(const TrackItemDataList& rows);

  void Swap(LatestEnds& other) noexcept { ends.swap(other.ends); }

  /// The positions of the rows that a time lies in, ascending. A row begins at its start and ends
  /// before its end, so that on a cut only the later of two clips counts. `rows` is the list that this
  /// was made of.
  std::vector<std::size_t> FindRowsAtTime(const TrackItemDataList& rows,
                                          qelmediatypes::TickTime time) const;

 private:
  std::vector<qelmediatypes::TickTime> ends;
};

}  // namespace Vantrel
