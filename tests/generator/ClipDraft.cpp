#include "generator/ClipDraft.h"

#include <string>

#include "host/ML/TextFilter.h"
#include "standalone/model/FrameSizeText.h"

namespace generator {
namespace {

using standalone::ClipDraft;
using standalone::ComponentDraft;
using standalone::MediaDraft;
using standalone::TrackKind;

constexpr const char* kFileNotFound = "Media file not found";
constexpr const char* kNoMedia = "Media is missing";

MediaDraft MakeMedia(const MediaFile& file, bool hasRange) {
  MediaDraft media;
  const bool isLost = file.kind == MediaFile::Kind::kLost;
  media.address = file.address;
  if (file.isLocal) media.lookUpPath = file.address;
  media.isOnlineStated = file.availability == Availability::kOnline;
  media.isOffline = !media.isOnlineStated;
  if (media.isOffline) media.offlineReason = isLost ? kNoMedia : kFileNotFound;
  media.codec = file.codec;
  const bool isFile = file.kind == MediaFile::Kind::kFile;
  media.isStill = isFile && file.frames == 1;
  media.isStillAssumed = isFile && (!hasRange || file.frames == 1);
  return media;
}

MediaDraft MakeProxy(const MediaFile& file) {
  MediaDraft media;
  media.address = file.proxyAddress;
  media.lookUpPath = file.proxyAddress;
  media.isStillAssumed = true;
  media.isOffline = file.isProxyOffline;
  media.isOnlineStated = !file.isProxyOffline;
  if (media.isOffline) media.offlineReason = kFileNotFound;
  return media;
}

/// Of its file, if the timeline has it.
void SetFrameDuration(const PlannedClip& clip, const PlannedTrack& track, ClipDraft& draft) {
  const bool isPicture = track.kind == TrackKind::kVideo;
  const bool hasRange = clip.media != nullptr && HasRange(*clip.media, track.kind);
  draft.isFrameDurationAssumed = !hasRange;
  if (!isPicture) {
    draft.frameDuration = kSamples.ToFrameRate().GetFrameDuration();
  } else if (hasRange) {
    draft.frameDuration = clip.media->pictureBase.ToFrameRate().GetFrameDuration();
  } else if (clip.media == nullptr && !clip.isWithoutMedia) {
    draft.frameDuration = track.base.ToFrameRate().GetFrameDuration();
  }
}

void SetMedia(const PlannedClip& clip, const PlannedTrack& track, ClipDraft& draft) {
  draft.media.isSynthetic = clip.media == nullptr && !clip.isWithoutMedia;
  draft.media.isOffline = clip.isWithoutMedia;
  if (clip.isWithoutMedia) draft.media.offlineReason = kNoMedia;
  if (clip.media == nullptr) return;
  const MediaFile& file = *clip.media;
  draft.media = MakeMedia(file, HasRange(file, track.kind));
  if (!file.proxyAddress.empty()) draft.proxy = MakeProxy(file);
  draft.sourceClipName = file.name;
  draft.tapeName = file.tape;
  if (draft.name.empty()) draft.name = file.name;
  if (track.kind == TrackKind::kVideo && file.width > 0) {
    draft.videoInfo = standalone::FormatFrameSize(file.width, file.height, "1.0");
  }
}

ComponentDraft MakeComponent(const PlannedEffect& effect) {
  ComponentDraft component;
  component.displayName = effect.name;
  component.matchName = effect.name;
  component.isIntrinsic = effect.isBuiltIn;
  component.isMissing = effect.isMissing;
  component.isMissingStated = effect.isMissing;
  return component;
}

void SetTitle(const PlannedClip& clip, ClipDraft& draft) {
  if (clip.generator != Generator::kTitle) return;
  draft.isGraphic = true;
  ComponentDraft& text = draft.components.emplace_back();
  text.displayName = ML::kMatchnameText;
  text.matchName = ML::kMatchnameText;
  text.isIntrinsic = true;
  text.fonts.emplace_back(clip.font);
}

void SetMulticam(const PlannedClip& clip, ClipDraft& draft) {
  if (!clip.camera) return;
  draft.multicam.isMulticam = true;
  draft.multicam.cameraNames.assign(std::begin(kCameras), std::end(kCameras));
  draft.multicam.selectedCamera = *clip.camera;
}

}  // namespace

void FillClipDraft(const PlannedClip& clip, const PlannedTrack& track, ClipDraft& draft) {
  draft.name = clip.name;
  SetMedia(clip, track, draft);
  SetFrameDuration(clip, track, draft);
  const bool hasLabel = clip.label != nullptr;
  const standalone::LabelColor& label = hasLabel ? *clip.label : standalone::kLabelPalette.front();
  draft.labelColor = label.color;
  draft.labelName = label.name;
  for (const PlannedEffect& effect : clip.effects) draft.components.push_back(MakeComponent(effect));
  SetTitle(clip, draft);
  SetMulticam(clip, draft);
  draft.comment = clip.comment;
  draft.description = clip.description;
  draft.isDisabled = clip.isDisabled;
  draft.isAdjustment = clip.generator == Generator::kAdjustment;
  draft.hasSpeedChange = clip.speed != 100;
}

}  // namespace generator
