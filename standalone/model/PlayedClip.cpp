#include "standalone/model/PlayedClip.h"

#include <typeinfo>

#include "standalone/model/TrackNodes.h"

namespace standalone {
namespace {

/// The item as a node, or null. Objects that stand before a node answer for it, but are of another
/// type.
const TrackItemNode* FindNode(BE::ITrackItem& item) noexcept {
  return typeid(item) == typeid(TrackItemNode) ? static_cast<const TrackItemNode*>(&item) : nullptr;
}

}  // namespace

PlayedClip::PlayedClip(qelcore::Borrowed<BE::ITrackItem> trackItem) {
  if (!trackItem) return;
  if (const TrackItemNode* const item = FindNode(*trackItem)) {
    node = item->GetClipNode();
    return;
  }
  held = trackItem->GetClip();
  node = FindClipNode(held);
}

}  // namespace standalone
