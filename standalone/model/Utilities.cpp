#include "host/BE/Utilities.h"

#include "standalone/model/ClipNode.h"
#include "standalone/model/MasterClipNode.h"
#include "standalone/model/MediaNode.h"
#include "standalone/model/SequenceNode.h"

namespace BE {

using qelcore::Ref;

namespace TrackItemUtils {

Ref<IClip> GetClip(const Ref<ITrackItem>& trackItem) {
  return trackItem ? trackItem->GetClip() : Ref<IClip>();
}

Ref<IChildClip> GetChildClip(const Ref<ITrackItem>& trackItem) {
  return qelcore::QueryInterface<IChildClip>(GetClip(trackItem));
}

Ref<IMasterClip> GetMasterClip(const Ref<ITrackItem>& trackItem) {
  const auto clip = standalone::FindClipNode(trackItem);
  return clip ? Ref<IMasterClip>(clip->GetValues().masterClip) : Ref<IMasterClip>();
}

Ref<ITransition> GetHeadTransition(const Ref<ITrackItem>& trackItem) {
  const auto clip = standalone::FindClipNode(trackItem);
  return clip ? Ref<ITransition>(clip->GetValues().headTransition) : Ref<ITransition>();
}

Ref<ITransition> GetTailTransition(const Ref<ITrackItem>& trackItem) {
  const auto clip = standalone::FindClipNode(trackItem);
  return clip ? Ref<ITransition>(clip->GetValues().tailTransition) : Ref<ITransition>();
}

}  // namespace TrackItemUtils

namespace MasterClipUtils {

Ref<IMedia> GetProxyMedia(const Ref<IMasterClip>& masterClip) {
  const auto* const node = qelcore::FindInterface<standalone::MasterClipNode>(masterClip.Get());
  return node == nullptr ? Ref<IMedia>() : node->GetProxyMedia();
}

bool IsStill(const Ref<IMasterClip>& masterClip) {
  const auto* const node = qelcore::FindInterface<standalone::MasterClipNode>(masterClip.Get());
  return node != nullptr && node->IsStill();
}

Ref<IProjectItem> GetProjectItem(const Ref<IMasterClip>& masterClip) {
  auto* const node = qelcore::FindInterface<standalone::MasterClipNode>(masterClip.Get());
  return node == nullptr ? Ref<IProjectItem>() : node->GetProjectItem();
}

}  // namespace MasterClipUtils

namespace MediaUtils {

bool IsSynthetic(const Ref<IMedia>& media) {
  const auto* const node = qelcore::FindInterface<standalone::MediaNode>(media.Get());
  return node != nullptr && node->IsSynthetic();
}

}  // namespace MediaUtils

namespace SequenceUtils {

qelmediatypes::TickTime GetZeroPoint(const Ref<ISequence>& sequence) {
  const auto content = standalone::FindContent(sequence);
  return content ? content->zeroPoint : qelmediatypes::TickTime();
}

}  // namespace SequenceUtils

namespace TrackItemSelectionFactory {

MZ::TrackItemSelection CreateSelection(const Ref<ITrackItem>& trackItem) {
  qelcore::Required(trackItem);
  return MZ::TrackItemSelection({trackItem});
}

}  // namespace TrackItemSelectionFactory

Ref<IProject> GetContainingProxyProject(const Ref<IClip>& clip) {
  const auto* const node = standalone::FindClipNode(clip);
  return node == nullptr ? Ref<IProject>() : node->GetContainingProxyProject();
}

}  // namespace BE
