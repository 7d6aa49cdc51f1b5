#include "host/MZ/Clips.h"

#include "standalone/model/ClipNode.h"
#include "standalone/model/SequenceNode.h"

namespace MZ {

using qelcore::Ref;

namespace FindClip {

qelcore::UTF8String GetClipName(const Ref<BE::ITrackItem>& trackItem) {
  const Ref<BE::IClip> clip = trackItem ? trackItem->GetClip() : Ref<BE::IClip>();
  return clip ? clip->GetName() : qelcore::UTF8String();
}

qelcore::UTF8String GetVideoInfo(const Ref<BE::ITrackItem>& trackItem) {
  const auto clip = standalone::FindClipNode(trackItem);
  return clip ? clip->GetValues().videoInfo : qelcore::UTF8String();
}

}  // namespace FindClip

namespace Graphics {

bool IsGraphicsTrackItem(const Ref<BE::ITrackItem>& trackItem) {
  const auto clip = standalone::FindClipNode(trackItem);
  return clip && clip->GetValues().isGraphic;
}

}  // namespace Graphics

namespace Project {

std::uint64_t GetMasterClipUsageCount(const Ref<BE::IProject>& project,
                                      const Ref<BE::IMasterClip>& masterClip,
                                      const Ref<BE::ISequence>& sequence) {
  if (!project || !masterClip) return 0;
  const auto content = standalone::FindContent(sequence);
  if (!content) return 0;
  const Ref<BE::IMedia> media = masterClip->GetMedia();
  const qelcore::UTF8String address = media ? media->GetAddress() : qelcore::UTF8String();
  if (address.Empty()) return 1;
  const auto found = content->usageCounts.find(address.View());
  return found == content->usageCounts.end() ? 0 : found->second;
}

}  // namespace Project

}  // namespace MZ
