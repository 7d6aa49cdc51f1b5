#include "data/ClipsAhead.h"

namespace Vantrel {
namespace {

/// The first two lines of a cache, in which most of what is asked of an object lies; of null, nothing.
void Fetch(const void* object) noexcept {
  if (object == nullptr) return;
  constexpr std::size_t kCacheLine = 64;
  __builtin_prefetch(object);
  __builtin_prefetch(static_cast<const char*>(object) + kCacheLine);
}

}  // namespace

void ClipsAhead::SetRows(std::span<const TrackItemRowData> newRows) noexcept {
  rows = newRows;
  for (std::size_t i = 0; i < rows.size(); ++i) clips[i] = RowClip(rows[i]);
}

void ClipsAhead::AskMasterClips() {
  for (const TrackItemRowData& row : rows) __builtin_prefetch(row.trackItem.Get());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (!clips[i].IsGap()) Fetch(rows[i].trackItem->GetClip().Get());
  }
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (!clips[i].IsGap()) Fetch(clips[i].GetMasterClip().Get());
  }
}

}  // namespace Vantrel
