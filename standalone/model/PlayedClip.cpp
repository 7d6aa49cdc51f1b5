#include "standalone/model/PlayedClip.h"

#include "standalone/model/TrackNodes.h"

namespace standalone {
namespace {

/// The item as a node, or null. An object that stands before a node may answer for it, and is none.
const TrackItemNode* FindNode(BE::ITrackItem* item) noexcept {
  const auto* const node = qelcore::FindInterface<TrackItemNode>(item);
  return static_cast<const BE::ITrackItem*>(node) == item ? node : nullptr;
}

}  // namespace

PlayedClip::PlayedClip(const qelcore::Ref<BE::ITrackItem>& trackItem) {
  if (!trackItem) return;
  if (const TrackItemNode* const item = FindNode(trackItem.Get())) {
    node = item->GetClipNode();
    return;
  }
  held = trackItem->GetClip();
  node = FindClipNode(held);
}

}  // namespace standalone
