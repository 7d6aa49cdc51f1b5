#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "host/BE/Model.h"
#include "host/HostAPI.h"
#include "host/qelcore/Borrowed.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"

namespace MZ {

/// A selection of track items, and what can be asked of it as a whole. [any-thread]
class HOST_API TrackItemSelection {
 public:
  explicit TrackItemSelection(std::vector<qelcore::Ref<BE::ITrackItem>> items);
  /// A selection of one item, which is borrowed: it can be asked for as long as the item lives. Made
  /// for each row of a table, by several threads at once, so it counts nothing.
  static TrackItemSelection OfItem(const qelcore::Ref<BE::ITrackItem>& item);

  /// True when the selection is not empty and every item is a clip with several cameras.
  bool AreItemsMulticam() const;
  /// The names of the cameras of the first item, in camera order; empty when it is not multicam.
  std::vector<qelcore::UTF8String> GetMulticamCameraNames() const;
  /// The camera that the first item shows, an index into the names.
  std::size_t GetMulticamItemsSelectedTrackIndex() const;

 private:
  qelcore::Borrowed<BE::ITrackItem> first;
  /// All of them, unless the first is borrowed.
  std::vector<qelcore::Ref<BE::ITrackItem>> items;
};

}  // namespace MZ
