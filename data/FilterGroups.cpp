#include "data/FilterGroups.h"

#include <algorithm>
#include <cstddef>

#include "data/GapRow.h"

namespace Vantrel {
namespace {

bool Passes(const TrackItemRowData& row, const FilterGroup& group) {
  const auto isTrue = [&row](const FilterPredicate& predicate) { return predicate(row); };
  return group.kind == kFilterGroupKind_All ? std::ranges::all_of(group.predicates, isTrue)
                                            : std::ranges::any_of(group.predicates, isTrue);
}

bool IsKept(const TrackItemRowData& row, const std::vector<FilterGroup>& groups, bool isKeepingGaps) {
  if (IsGapRow(row)) return isKeepingGaps;
  return std::ranges::all_of(groups, [&row](const auto& group) { return Passes(row, group); });
}

/// A row is asked for in less time than the memory takes to answer once.
constexpr std::size_t kRowsAhead = 8;

// Rows stand in the order of time, their items track by track, and in a long sequence in no cache: the
// memory is asked for them ahead.
void RequestItem(const TrackItemRowData& row) noexcept {
  __builtin_prefetch(row.trackItem.Get());
}

}  // namespace

std::shared_ptr<TrackItemDataList> FilterTrackItemDataList(const TrackItemDataList& rows,
                                                           const std::vector<FilterGroup>& groups,
                                                           bool isKeepingGaps) {
  auto kept = std::make_shared<TrackItemDataList>();
  // Most rows pass, and growing would move a million of them twenty times.
  kept->reserve(rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i + kRowsAhead < rows.size()) RequestItem(rows[i + kRowsAhead]);
    if (IsKept(rows[i], groups, isKeepingGaps)) kept->push_back(rows[i]);
  }
  return kept;
}

}  // namespace Vantrel
