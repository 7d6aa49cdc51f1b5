#include "standalone/model/ClipNode.h"

#include <utility>

#include "standalone/model/MemoryRequest.h"
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

qelcore::Borrowed<BE::IMedia> ClipNode::GetMedia() const {
  return qelcore::Borrowed<BE::IMedia>(values.media);
}

qelcore::Borrowed<BE::IMasterClip> ClipNode::GetMasterClip() const {
  return qelcore::Borrowed<BE::IMasterClip>(values.masterClip);
}

qelcore::Borrowed<BE::IComponent> ClipNode::GetComponent(std::size_t index) const {
  return qelcore::Borrowed<BE::IComponent>(&GetContent().components[values.firstComponent + index]);
}

qelcore::Ref<BE::IProject> ClipNode::GetContainingProxyProject() const {
  if (values.masterClip == nullptr || !values.masterClip->GetProxyMedia()) return {};
  return GetContent().project->FindOpenProject();
}

void ClipNode::RequestNext() const noexcept {
  // Clips stand side by side.
  RequestMemory(this + 1);
  RequestMemory(nextSource);
}

ClipNode* FindClipNode(qelcore::Borrowed<BE::IClip> clip) noexcept {
  return qelcore::FindInterface<ClipNode>(clip.Get());
}

}  // namespace standalone
