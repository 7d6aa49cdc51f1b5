#include "standalone/probing/FillClip.h"

#include "host/qelmediatypes/FrameRate.h"
#include "standalone/model/FrameSizeText.h"

namespace standalone {

namespace {

using qelmediatypes::FrameRate;

bool IsFailure(MediaOutcome outcome) {
  return outcome == MediaOutcome::kDamaged || outcome == MediaOutcome::kInaccessible ||
         outcome == MediaOutcome::kTimeLimit;
}

void FillState(MediaDraft& media, const MediaFile& file) {
  if (file.isGrowing) {
    media.isGrowing = media.isGrowing || (!media.isPendingConnection && !media.isPendingRelink);
    return;
  }
  if (!IsFailure(file.reading.outcome) || media.isOnlineStated) return;
  media.isOffline = true;
  media.offlineReason = "Media file can't be read: " + file.reading.reason;
}

void SetRate(ClipDraft& clip, FrameRate rate) {
  if (!clip.isFrameDurationAssumed || !rate.IsKnown()) return;
  clip.frameDuration = rate.GetFrameDuration();
  clip.isFrameDurationAssumed = false;
}

void FillStill(MediaDraft& media, const MediaFacts& facts) {
  if (!media.isStillAssumed) return;
  media.isStill = facts.isStill;
  media.isStillAssumed = false;
}

void FillPicture(ClipDraft& clip, const MediaFacts& facts) {
  if (!facts.hasPicture) return;
  MediaDraft& media = clip.media;
  // One fact in two forms: a code beside somebody else's name would be of another codec.
  if (media.codec.empty() && media.fourCC == 0) {
    media.codec = facts.codec;
    media.fourCC = facts.fourCC;
  }
  if (clip.videoInfo.empty() && facts.width > 0 && facts.height > 0) {
    const MediaRatio aspect = facts.pixelAspect;
    clip.videoInfo = FormatFrameSize(facts.width, facts.height,
                                     FormatPixelAspect(aspect.numerator, aspect.denominator));
  }
  SetRate(clip, FrameRate::FromRational(facts.pictureRate.numerator, facts.pictureRate.denominator));
}

}  // namespace

void FillClip(ClipDraft& clip, TrackKind kind, const MediaFile& file) {
  FillState(clip.media, file);
  if (file.reading.outcome != MediaOutcome::kRead) return;
  const MediaFacts& facts = file.reading.facts;
  FillStill(clip.media, facts);
  if (kind == TrackKind::kVideo) FillPicture(clip, facts);
  if (kind == TrackKind::kAudio) SetRate(clip, FrameRate::FromRational(facts.sampleRate, 1));
}

}  // namespace standalone
