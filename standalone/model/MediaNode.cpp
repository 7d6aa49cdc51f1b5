#include "standalone/model/MediaNode.h"

#include <utility>

namespace standalone {

VideoSourceNode::VideoSourceNode(const SequenceContent& content, qelcore::UTF8String codec,
                                 std::uint32_t fourCC)
    : ContentNode(content), fourCC(fourCC), codec(std::move(codec)) {}

void* VideoSourceNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  return id == BE::IVideoSource::kInterfaceID ? static_cast<BE::IVideoSource*>(this) : nullptr;
}

OfflineReasonNode::OfflineReasonNode(const SequenceContent& content, qelcore::UTF8String description)
    : ContentNode(content), description(std::move(description)) {}

void* OfflineReasonNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  return id == BE::IOfflineReason::kInterfaceID ? static_cast<BE::IOfflineReason*>(this) : nullptr;
}

MediaNode::MediaNode(const SequenceContent& content, qelcore::UTF8String address, MediaFlags flags,
                     VideoSourceNode* source, OfflineReasonNode* reason)
    : ContentNode(content), flags(flags), address(std::move(address)), source(source), reason(reason) {}

void* MediaNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  if (id == BE::IMedia::kInterfaceID) return static_cast<BE::IMedia*>(this);
  if (id == kInterfaceID) return this;
  return nullptr;
}

qelcore::Borrowed<BE::IOfflineReason> MediaNode::GetOfflineReason() const {
  return qelcore::Borrowed<BE::IOfflineReason>(reason);
}

qelcore::Borrowed<BE::IVideoSource> MediaNode::GetVideoSource() const {
  return qelcore::Borrowed<BE::IVideoSource>(source);
}

}  // namespace standalone
