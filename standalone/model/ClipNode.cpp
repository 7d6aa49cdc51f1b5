#include "standalone/model/ClipNode.h"

#include <utility>

#include "standalone/model/SequenceContent.h"

namespace standalone {

ClipNode::ClipNode(const SequenceContent& content, Values values)
    : ContentNode(content), values(std::move(values)) {}

void* ClipNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  if (id == BE::IClip::kInterfaceID) return static_cast<BE::IClip*>(this);
  if (id == BE::IChildClip::kInterfaceID) return static_cast<BE::IChildClip*>(this);
  if (id == BE::IComponentOwner::kInterfaceID) return static_cast<BE::IComponentOwner*>(this);
  if (id == kInterfaceID) return this;
  return nullptr;
}

qelcore::Ref<BE::IMedia> ClipNode::GetMedia() const {
  return qelcore::Ref<BE::IMedia>(values.media);
}

qelcore::Ref<BE::IMasterClip> ClipNode::GetMasterClip() const {
  return qelcore::Ref<BE::IMasterClip>(values.masterClip);
}

qelcore::Ref<BE::IComponent> ClipNode::GetComponent(std::size_t index) const {
  return qelcore::Ref<BE::IComponent>(&GetContent().components[values.firstComponent + index]);
}

qelcore::Ref<BE::IProject> ClipNode::GetContainingProxyProject() const {
  if (values.masterClip == nullptr || !values.masterClip->GetProxyMedia()) return {};
  return GetContent().project->FindOpenProject();
}

qelcore::Ref<ClipNode> FindClipNode(const qelcore::Ref<BE::ITrackItem>& trackItem) {
  if (!trackItem) return {};
  return qelcore::QueryInterface<ClipNode>(trackItem->GetClip());
}

ClipNode* FindClipNode(const qelcore::Ref<BE::IClip>& clip) noexcept {
  return qelcore::FindInterface<ClipNode>(clip.Get());
}

}  // namespace standalone
