#include "standalone/model/SequenceContent.h"

#include <utility>

#include "host/BE/MediaTypes.h"
#include "standalone/model/MemoryRequest.h"

namespace standalone {

namespace {

// An item is visited in a quarter of a microsecond, which is about what the memory takes to answer.
constexpr std::size_t kSourcesAhead = 4;
constexpr std::size_t kClipsAhead = 2 * kSourcesAhead;

}  // namespace

void AddContentReference(const SequenceContent& content) noexcept {
  content.AddRef();
}
void ReleaseContentReference(const SequenceContent& content) noexcept {
  content.Release();
}

SequenceContent::SequenceContent(qelcore::Ref<ProjectNode> project)
    : project(std::move(project)),
      videoGroup(*this, BE::kMediaType_Video),
      audioGroup(*this, BE::kMediaType_Audio) {}

void SequenceContent::VisitGroups(const BE::SequenceVisitor& visitor) const {
  for (TrackGroupNode* const group : {&videoGroup, &audioGroup}) {
    if (visitor(*group) != BE::VisitorStatus::kContinue) continue;
    for (TrackNode* const track : group->tracks) VisitTrack(*track, visitor);
  }
}

void SequenceContent::VisitTrack(TrackNode& track, const BE::SequenceVisitor& visitor) const {
  if (visitor(track) != BE::VisitorStatus::kContinue) return;
  const std::size_t end = track.firstItem + track.itemCount;
  for (std::size_t i = track.firstItem; i < end; ++i) {
    if (i + kClipsAhead < end) RequestClips(i);
    visitor(items[i]);
  }
}

// Who visits an item asks what it plays, and in a long timeline that lies in no cache. So the memory is
// asked some items ahead: for a clip first, and when it is there, for its sources.
void SequenceContent::RequestClips(std::size_t visited) const noexcept {
  RequestMemory(items[visited + kClipsAhead].GetClipNode());
  const ClipNode* const clip = items[visited + kSourcesAhead].GetClipNode();
  if (clip == nullptr) return;
  RequestMemory(clip->GetValues().masterClip);
  RequestMemory(clip->GetValues().media);
}

}  // namespace standalone
