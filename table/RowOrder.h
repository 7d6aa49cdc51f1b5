#pragma once

#include <algorithm>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "data/TrackItemRowData.h"
#include "host/BE/MediaTypes.h"
#include "host/qelmediatypes/TickTime.h"

namespace Vantrel {

/// What rows are ordered by, and where the row stands now. Sorted in the rows' stead: a row is five
/// times as large.
struct RowOrderKey {
  qelmediatypes::TickTime start;
  BE::MediaType mediaType;
  std::uint64_t trackIndex = 0;
  std::size_t position = 0;
};

/// True when `left` stands before `right`: by start, then by the bytes of the media type (which puts
/// picture before sound), then by track. The position has no part in it.
struct RowOrderLess {
  bool operator()(const RowOrderKey& left, const RowOrderKey& right) const noexcept {
    if (left.start != right.start) return left.start < right.start;
    if (const auto order = left.mediaType <=> right.mediaType; order != 0) return order < 0;
    return left.trackIndex < right.trackIndex;
  }
};

/// Sorts in O(n log n) comparisons at worst; keys that are equal end in any order.
template <typename Less = RowOrderLess>
void SortRowOrderKeys(std::vector<RowOrderKey>& keys, Less isLess = Less()) {
  std::sort(keys.begin(), keys.end(), isLess);
}

/// Puts rows into the one order of the table, by time on the timeline, and numbers them from 0.
/// Changes nothing of a row but its `index`. [any-thread] Throws: std::bad_alloc, with the rows as
/// they were.
void OrderAndNumberRows(TrackItemDataList& rows);

}  // namespace Vantrel
