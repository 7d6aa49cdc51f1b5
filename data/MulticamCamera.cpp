#include "data/MulticamCamera.h"

#include <cstddef>

#include "host/BE/Utilities.h"
#include "host/MZ/TrackItemSelection.h"

namespace Vantrel {

qelcore::UTF8String MulticamCameraText(const qelcore::Ref<BE::ITrackItem>& trackItem) {
  const auto selection = BE::TrackItemSelectionFactory::CreateSelection(trackItem);
  if (!selection.AreItemsMulticam()) return {};
  const auto cameraNames = selection.GetMulticamCameraNames();
  const std::size_t camera = selection.GetMulticamItemsSelectedTrackIndex();
  return camera < cameraNames.size() ? cameraNames[camera] : qelcore::UTF8String();
}

}  // namespace Vantrel
