#include "host/MZ/TrackItemSelection.h"

#include <algorithm>

#include "standalone/model/ClipNode.h"

namespace MZ {
namespace {

/// The cameras of a track item, valid as long as the item; null when it is not multicam.
const standalone::MulticamCameras* FindCameras(const qelcore::Ref<BE::ITrackItem>& item) {
  const auto clip = standalone::FindClipNode(item);
  return clip ? clip->GetValues().cameras : nullptr;
}

const standalone::MulticamCameras* FindFirstCameras(
    const std::vector<qelcore::Ref<BE::ITrackItem>>& items) {
  return items.empty() ? nullptr : FindCameras(items.front());
}

}  // namespace

TrackItemSelection::TrackItemSelection(std::vector<qelcore::Ref<BE::ITrackItem>> items)
    : items(std::move(items)) {}

bool TrackItemSelection::AreItemsMulticam() const {
  return !items.empty() && std::all_of(items.begin(), items.end(),
                                       [](const auto& item) { return FindCameras(item) != nullptr; });
}

std::vector<qelcore::UTF8String> TrackItemSelection::GetMulticamCameraNames() const {
  const auto* const cameras = FindFirstCameras(items);
  return cameras == nullptr ? std::vector<qelcore::UTF8String>() : cameras->names;
}

std::size_t TrackItemSelection::GetMulticamItemsSelectedTrackIndex() const {
  const auto* const cameras = FindFirstCameras(items);
  return cameras == nullptr ? 0 : cameras->selected;
}

}  // namespace MZ
