#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "data/RowClip.h"
#include "data/TrackItemRowData.h"

namespace Vantrel {

/// The clips of the rows that come next, asked ahead. Each answer leads to another place in the memory;
/// where one step is asked of many rows, the places are fetched side by side instead of one after
/// another. One thread at a time.
class ClipsAhead {
 public:
  static constexpr std::size_t kMostRows = 32;

  /// The clips of at most kMostRows rows, which stay as they are meanwhile; nothing is asked yet.
  void SetRows(std::span<const TrackItemRowData> rows) noexcept;

  /// Asks for the master clips of these rows. Throws: null_pointer_exception when a row has no track
  /// item.
  void AskMasterClips();

  /// The clip of one of these rows.
  RowClip& operator[](std::size_t index) noexcept { return clips[index]; }

 private:
  std::span<const TrackItemRowData> rows;
  std::array<RowClip, kMostRows> clips;
};

}  // namespace Vantrel
