#include "standalone/model/SequenceContent.h"

#include <utility>

#include "host/BE/MediaTypes.h"

namespace standalone {

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
  for (std::size_t i = 0; i < track.itemCount; ++i) visitor(items[track.firstItem + i]);
}

}  // namespace standalone
