#include "standalone/model/SequenceNode.h"

#include <utility>

#include "standalone/model/ModelWriteLock.h"

namespace standalone {

template <typename Interface>
SequenceNode::StationFace<Interface>::StationFace(SequenceNode& owner)
    : station(qelcore::messaging::UniqueStationID()), owner(owner) {
  qelcore::messaging::RegisterStation(station);
}

template <typename Interface>
SequenceNode::StationFace<Interface>::~StationFace() {
  qelcore::messaging::DisposeStation(station);
}

SequenceNode::SequenceNode(qelcore::Ref<SequenceContent> content)
    : contentStation(*this),
      trackGroupStation(*this),
      content(std::move(content)),
      published(this->content.Get()),
      times(*this->content) {}

void SequenceNode::AddRef() const noexcept {
  count.fetch_add(1, std::memory_order_relaxed);
}

void SequenceNode::Release() const noexcept {
  if (count.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
}

void* SequenceNode::QueryInterface(qelcore::InterfaceID id) noexcept {
  if (id == BE::ISequence::kInterfaceID) return static_cast<BE::ISequence*>(this);
  if (id == BE::ISequenceContent::kInterfaceID) {
    return static_cast<BE::ISequenceContent*>(&contentStation);
  }
  if (id == BE::ISequenceTrackGroups::kInterfaceID) {
    return static_cast<BE::ISequenceTrackGroups*>(&trackGroupStation);
  }
  if (id == VisitableSequence::kInterfaceID) return static_cast<VisitableSequence*>(this);
  if (id == kInterfaceID) return this;
  return nullptr;
}

qelcore::UTF8String SequenceNode::GetName() const {
  return GetContent()->name;
}

qelmediatypes::TickTime SequenceNode::GetVideoFrameDuration() const {
  return times.GetVideoFrameDuration();
}

qelmediatypes::TickTime SequenceNode::GetAudioFrameDuration() const {
  return times.GetAudioFrameDuration();
}

void SequenceNode::VisitChildren(const BE::SequenceVisitor& visitor) const {
  GetContent()->VisitGroups(visitor);
}

qelcore::Ref<SequenceContent> SequenceNode::GetContent() const {
  const std::lock_guard lock(contentMutex);
  return content;
}

qelcore::Ref<SequenceContent> SequenceNode::Publish(qelcore::Ref<SequenceContent> next) {
  const ModelWriteLock writing;
  const std::lock_guard lock(contentMutex);
  published = next.Get();
  times.Set(*next);
  std::swap(content, next);
  return next;
}

void SequenceNode::OpenPlayer() {
  if (!player) {
    player = qelcore::Ref<PlayerNode>(new PlayerNode);
    player->SetEnd(GetContent()->clipsEnd);
  }
  player->Open();
}

const SequenceNode* FindSequenceNode(const qelcore::Ref<BE::ISequence>& sequence) noexcept {
  return qelcore::FindInterface<SequenceNode>(sequence.Get());
}

qelcore::Ref<SequenceContent> FindContent(const qelcore::Ref<BE::ISequence>& sequence) {
  const SequenceNode* const node = FindSequenceNode(sequence);
  return node == nullptr ? qelcore::Ref<SequenceContent>() : node->GetContent();
}

}  // namespace standalone
