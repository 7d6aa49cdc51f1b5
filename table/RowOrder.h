#pragma once

#include <algorithm>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "data/TrackItemRowData.h"
#include "host/BE/MediaTypes.h"
#include "host/qelcore/RecyclingAllocator.h"
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

using RowOrderKeys = std::vector<RowOrderKey, qelcore::memory::RecyclingAllocator<RowOrderKey>>;

/// True when `left` stands before `right`: by start, then by the bytes of the media type (which puts
/// picture before sound), then by track. The position has no part in it.
struct RowOrderLess {
  bool operator()(const RowOrderKey& left, const RowOrderKey& right) const noexcept {
    if (left.start != right.start) return left.start < right.start;
    if (const auto order = left.mediaType <=> right.mediaType; order != 0) return order < 0;
    return left.trackIndex < right.trackIndex;
  }
};

/// Merges each two neighbouring runs of `keys` into one of `merged`. `ends` says where each run ends,
/// before and after.
template <typename Less>
void MergeNeighbouringRuns(const RowOrderKeys& keys, std::vector<std::size_t>& ends,
                           RowOrderKeys& merged, Less isLess) {
  const auto at = [first = keys.begin()](std::size_t i) {
    return first + static_cast<std::ptrdiff_t>(i);
  };
  auto target = merged.begin();
  std::size_t begin = 0;
  std::size_t runs = 0;
  for (std::size_t i = 0; i < ends.size(); i += 2) {
    const std::size_t middle = ends[i];
    const std::size_t end = ends[std::min(i + 1, ends.size() - 1)];
    target = std::merge(at(begin), at(middle), at(middle), at(end), target, isLess);
    ends[runs++] = begin = end;
  }
  ends.resize(runs);
}

/// Sorts in at most n (1 + log2 r) comparisons, r being the number of ascending runs that the keys come
/// in; keys that are equal stay in the order they come in. The host visits track by track, each in time
/// order, so the runs are the tracks.
template <typename Less = RowOrderLess>
void SortRowOrderKeys(RowOrderKeys& keys, Less isLess = Less()) {
  std::vector<std::size_t> ends;
  for (std::size_t i = 1; i <= keys.size(); ++i) {
    if (i == keys.size() || isLess(keys[i], keys[i - 1])) ends.push_back(i);
  }
  RowOrderKeys merged(ends.size() > 1 ? keys.size() : 0);
  while (ends.size() > 1) {
    MergeNeighbouringRuns(keys, ends, merged, isLess);
    keys.swap(merged);
  }
}

/// The keys of rows in the one order of the table, of gaps only when `isKeepingGaps`; equal ones as
/// they stand now. [any-thread] Throws: std::bad_alloc.
RowOrderKeys FindRowOrder(const TrackItemDataList& rows, bool isKeepingGaps = true);

/// Puts rows into the one order of the table, by time on the timeline, and numbers them from 0. Gaps
/// leave the list unless `isKeepingGaps`: dropped while the rows move to their places, they cost
/// nothing. Changes nothing of a row but its `index`. [any-thread] Throws: as FindRowOrder, with the
/// rows as they were.
void OrderAndNumberRows(TrackItemDataList& rows, bool isKeepingGaps = true);

}  // namespace Vantrel
