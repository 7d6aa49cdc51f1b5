#include "host/MZ/Clips.h"

#include "standalone/model/PlayedClip.h"
#include "standalone/model/SequenceNode.h"

namespace MZ {

using qelcore::Borrowed;
using qelcore::Ref;

namespace FindClip {

qelcore::UTF8String GetClipName(const Ref<BE::ITrackItem>& trackItem) {
  const auto clip = trackItem ? trackItem->GetClip() : Borrowed<BE::IClip>();
  return clip ? clip->GetName() : qelcore::UTF8String();
}

qelcore::UTF8String GetVideoInfo(const Ref<BE::ITrackItem>& trackItem) {
  const standalone::PlayedClip clip(trackItem);
  return clip ? clip->GetValues().videoInfo : qelcore::UTF8String();
}

}  // namespace FindClip

namespace Graphics {

bool IsGraphicsTrackItem(const Ref<BE::ITrackItem>& trackItem) {
  const standalone::PlayedClip clip(trackItem);
  return clip && clip->GetValues().isGraphic;
}

}  // namespace Graphics

namespace Project {
namespace {

/// The media as a node of what the sequence publishes, which has its count at hand, or null. An object
/// that stands before a node may answer for it, and is none.
const standalone::MediaNode* FindNode(Borrowed<BE::IMedia> media,
                                      const standalone::SequenceNode& sequence) {
  const auto* const node = qelcore::FindInterface<standalone::MediaNode>(media.Get());
  const bool isItself = static_cast<const BE::IMedia*>(node) == media.Get();
  return node != nullptr && isItself && sequence.Publishes(node->GetContent()) ? node : nullptr;
}

}  // namespace

std::uint64_t GetMasterClipUsageCount(const Ref<BE::IProject>& project,
                                      Borrowed<BE::IMasterClip> masterClip,
                                      const Ref<BE::ISequence>& sequence) {
  if (!project || !masterClip) return 0;
  const standalone::SequenceNode* const sequenceNode = standalone::FindSequenceNode(sequence);
  if (sequenceNode == nullptr) return 0;
  const Borrowed<BE::IMedia> media = masterClip->GetMedia();
  if (const auto* const node = FindNode(media, *sequenceNode)) {
    return node->usageCount == nullptr ? 1 : *node->usageCount;
  }
  const auto content = sequenceNode->GetContent();
  const qelcore::UTF8String address = media ? media->GetAddress() : qelcore::UTF8String();
  if (address.Empty()) return 1;
  const auto found = content->usageCounts.find(address.View());
  return found == content->usageCounts.end() ? 0 : found->second;
}

}  // namespace Project

}  // namespace MZ
