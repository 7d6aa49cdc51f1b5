#include "host/BE/Utilities.h"

#include "standalone/model/ClipNode.h"
#include "standalone/model/MasterClipNode.h"
#include "standalone/model/MediaNode.h"
#include "standalone/model/PlayedClip.h"
#include "standalone/model/SequenceNode.h"

namespace BE {

using qelcore::Borrowed;
using qelcore::Ref;

namespace TrackItemUtils {

Borrowed<IClip> GetClip(const Ref<ITrackItem>& trackItem) {
  return trackItem ? trackItem->GetClip() : Borrowed<IClip>();
}

Borrowed<IChildClip> GetChildClip(const Ref<ITrackItem>& trackItem) {
  return qelcore::QueryInterface<IChildClip>(GetClip(trackItem));
}

Borrowed<IMasterClip> GetMasterClip(const Ref<ITrackItem>& trackItem) {
  const standalone::PlayedClip clip(trackItem);
  if (!clip) return {};
  // Asked for each row by whoever goes through many.
  clip->RequestNext();
  return Borrowed<IMasterClip>(clip->GetValues().masterClip);
}

Borrowed<ITransition> GetHeadTransition(const Ref<ITrackItem>& trackItem) {
  const standalone::PlayedClip clip(trackItem);
  return clip ? Borrowed<ITransition>(clip->GetValues().headTransition) : Borrowed<ITransition>();
}

Borrowed<ITransition> GetTailTransition(const Ref<ITrackItem>& trackItem) {
  const standalone::PlayedClip clip(trackItem);
  return clip ? Borrowed<ITransition>(clip->GetValues().tailTransition) : Borrowed<ITransition>();
}

}  // namespace TrackItemUtils

namespace MasterClipUtils {

Borrowed<IMedia> GetProxyMedia(Borrowed<IMasterClip> masterClip) {
  const auto* const node = qelcore::FindInterface<standalone::MasterClipNode>(masterClip.Get());
  return node == nullptr ? Borrowed<IMedia>() : node->GetProxyMedia();
}

bool IsStill(Borrowed<IMasterClip> masterClip) {
  const auto* const node = qelcore::FindInterface<standalone::MasterClipNode>(masterClip.Get());
  return node != nullptr && node->IsStill();
}

Borrowed<IProjectItem> GetProjectItem(Borrowed<IMasterClip> masterClip) {
  auto* const node = qelcore::FindInterface<standalone::MasterClipNode>(masterClip.Get());
  return node == nullptr ? Borrowed<IProjectItem>() : node->GetProjectItem();
}

}  // namespace MasterClipUtils

namespace MediaUtils {

bool IsSynthetic(Borrowed<IMedia> media) {
  const auto* const node = qelcore::FindInterface<standalone::MediaNode>(media.Get());
  return node != nullptr && node->IsSynthetic();
}

}  // namespace MediaUtils

namespace SequenceUtils {

qelmediatypes::TickTime GetZeroPoint(const Ref<ISequence>& sequence) {
  const auto* const node = standalone::FindSequenceNode(sequence);
  return node == nullptr ? qelmediatypes::TickTime() : node->GetTimes().GetZeroPoint();
}

}  // namespace SequenceUtils

namespace TrackItemSelectionFactory {

MZ::TrackItemSelection CreateSelection(const Ref<ITrackItem>& trackItem) {
  qelcore::Required(trackItem);
  return MZ::TrackItemSelection::OfItem(trackItem);
}

}  // namespace TrackItemSelectionFactory

Ref<IProject> GetContainingProxyProject(Borrowed<IClip> clip) {
  const auto* const node = standalone::FindClipNode(clip);
  return node == nullptr ? Ref<IProject>() : node->GetContainingProxyProject();
}

}  // namespace BE
