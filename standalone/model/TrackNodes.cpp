#include "standalone/model/TrackNodes.h"

#include <utility>

namespace standalone {

TrackNode::TrackNode(const SequenceContent& content, BE::MediaType mediaType, std::uint64_t index,
                     Values values)
    : ContentNode(content), mediaType(mediaType), index(index), values(std::move(values)) {}

void* TrackNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  return id == BE::ITrack::kInterfaceID ? static_cast<BE::ITrack*>(this) : nullptr;
}

TrackGroupNode::TrackGroupNode(const SequenceContent& content, BE::MediaType identifier)
    : ContentNode(content), identifier(identifier) {}

void* TrackGroupNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  return id == BE::ITrackGroup::kInterfaceID ? static_cast<BE::ITrackGroup*>(this) : nullptr;
}

TrackItemNode::TrackItemNode(TrackNode& track, std::uint32_t type, qelmediatypes::TickTime start,
                             qelmediatypes::TickTime end, ClipNode* clip) noexcept
    : track(&track), clip(clip), start(start), end(end), type(type) {}

void* TrackItemNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  if (id == BE::ITrackItem::kInterfaceID) return static_cast<BE::ITrackItem*>(this);
  if (id == kInterfaceID) return this;
  return nullptr;
}

qelcore::Borrowed<BE::IClip> TrackItemNode::GetClip() const {
  return qelcore::Borrowed<BE::IClip>(clip);
}

qelcore::Borrowed<qelcore::IUnknown> TrackItemNode::GetTrack() const {
  return qelcore::Borrowed<qelcore::IUnknown>(track);
}

}  // namespace standalone
