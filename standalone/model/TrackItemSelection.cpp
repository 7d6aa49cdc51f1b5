#include "host/MZ/TrackItemSelection.h"

#include <algorithm>

#include "standalone/model/PlayedClip.h"

namespace MZ {
namespace {

/// The cameras of a track item, valid as long as the item; null when it is not multicam.
const standalone::MulticamCameras* FindCameras(qelcore::Borrowed<BE::ITrackItem> item) {
  const standalone::PlayedClip clip(item);
  return clip ? clip->GetValues().cameras : nullptr;
}

}  // namespace

TrackItemSelection::TrackItemSelection(std::vector<qelcore::Ref<BE::ITrackItem>> items)
    : items(std::move(items)) {
  if (!this->items.empty()) first = this->items.front();
}

TrackItemSelection TrackItemSelection::OfItem(const qelcore::Ref<BE::ITrackItem>& item) {
  TrackItemSelection selection(std::vector<qelcore::Ref<BE::ITrackItem>>{});
  selection.first = item;
  return selection;
}

bool TrackItemSelection::AreItemsMulticam() const {
  return FindCameras(first) != nullptr &&
         std::ranges::all_of(items, [](const auto& item) { return FindCameras(item) != nullptr; });
}

std::vector<qelcore::UTF8String> TrackItemSelection::GetMulticamCameraNames() const {
  const auto* const cameras = FindCameras(first);
  return cameras == nullptr ? std::vector<qelcore::UTF8String>() : cameras->names;
}

std::size_t TrackItemSelection::GetMulticamItemsSelectedTrackIndex() const {
  const auto* const cameras = FindCameras(first);
  return cameras == nullptr ? 0 : cameras->selected;
}

}  // namespace MZ
