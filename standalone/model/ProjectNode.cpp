#include "standalone/model/ProjectNode.h"

namespace standalone {

ProjectNode::ProjectNode() : station(qelcore::messaging::UniqueStationID()) {
  qelcore::messaging::RegisterStation(station);
}

void ProjectNode::AddRef() const noexcept {
  count.fetch_add(1, std::memory_order_relaxed);
}

void ProjectNode::Release() const noexcept {
  if (count.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
}

void* ProjectNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  if (id == BE::IProject::kInterfaceID) return static_cast<BE::IProject*>(this);
  if (id == BE::INotification::kInterfaceID) return static_cast<BE::INotification*>(this);
  return nullptr;
}

qelcore::Ref<BE::IProject> ProjectNode::FindOpenProject() noexcept {
  return qelcore::Ref<BE::IProject>(isOpen.load(std::memory_order_acquire) ? this : nullptr);
}

void ProjectNode::Close() noexcept {
  isOpen.store(false, std::memory_order_release);
  qelcore::messaging::DisposeStation(station);
}

}  // namespace standalone
