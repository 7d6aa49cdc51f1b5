#include "data/FilterGroups.h"

#include <algorithm>

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

}  // namespace

std::shared_ptr<TrackItemDataList> FilterTrackItemDataList(const TrackItemDataList& rows,
                                                           const std::vector<FilterGroup>& groups,
                                                           bool isKeepingGaps) {
  auto kept = std::make_shared<TrackItemDataList>();
  // Most rows pass, and growing would move a million of them twenty times.
  kept->reserve(rows.size());
  for (const TrackItemRowData& row : rows) {
    if (IsKept(row, groups, isKeepingGaps)) kept->push_back(row);
  }
  return kept;
}

}  // namespace Vantrel
