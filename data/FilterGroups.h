#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "data/TrackItemRowData.h"

namespace Vantrel {

/// A question put to a row. Runs on the refresh executor; owns what it needs.
using FilterPredicate = std::function<bool(const TrackItemRowData&)>;

/// How the predicates of a group combine; any number but kFilterGroupKind_All counts as
/// kFilterGroupKind_Any.
inline constexpr std::uint32_t kFilterGroupKind_All = 0;  ///< Every one; an empty group passes.
inline constexpr std::uint32_t kFilterGroupKind_Any = 1;  ///< At least one; an empty group fails.

struct FilterGroup {
  std::vector<FilterPredicate> predicates;
  std::uint32_t kind = kFilterGroupKind_All;
};

/// Copies of the rows that pass, in input order, unchanged. A gap passes when `isKeepingGaps`, whatever
/// the groups say; any other row passes when every group does, and the first group that fails decides.
/// Never null. [any-thread] Throws: what a predicate throws; std::bad_function_call for an empty one.
std::shared_ptr<TrackItemDataList> FilterTrackItemDataList(const TrackItemDataList& rows,
                                                           const std::vector<FilterGroup>& groups,
                                                           bool isKeepingGaps);

}  // namespace Vantrel
