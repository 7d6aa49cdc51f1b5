#include "generator/ClipDresser.h"

#include <algorithm>
#include <utility>

namespace generator {
namespace {

using standalone::TrackKind;

constexpr int kSpeeds[] = {50, 200, -100, 0, 150, 25, 110};

}  // namespace

ClipDresser::ClipDresser(const TrackWalkContext& context, Chance chance)
    : context(context), words(context.shape.worldTextPercent), chance(chance) {}

std::int64_t ClipDresser::ToUnits(std::int64_t frames) {
  const TimeBase& base = context.track.base;
  if (base.numerator != kSamples.numerator) return frames;
  const TimeBase& pictures = context.pictureBase;
  const std::int64_t samples = base.numerator * pictures.denominator / pictures.numerator;
  return frames * samples - static_cast<std::int64_t>(chance.Below(static_cast<std::size_t>(samples)));
}

PlannedClip ClipDresser::MakeClip(const Shot& shot) {
  PlannedClip clip;
  clip.length = ToUnits(shot.length);
  clip.offset = ToUnits(shot.offset + 1);
  if (context.shape.isLean) {
    clip.name = shot.media->clipName;
    clip.isWithoutMedia = true;
    return clip;
  }
  SetContent(shot, clip);
  AddEffects(clip);
  if (shot.isRetimed) SetSpeed(clip);
  SetNotes(clip);
  return clip;
}

void ClipDresser::SetContent(const Shot& shot, PlannedClip& clip) {
  clip.media = shot.media;
  // Some programs leave a clip's name to its media.
  if (!chance.OneIn(100)) clip.name = shot.media->clipName;
  const MediaUse use = context.style.shots.media;
  if (use == MediaUse::kGraphics) SetGraphics(clip);
  if (use != MediaUse::kCamera) return;
  clip.linkGroup = (context.place + 1) * 100'000'000 + shot.number;
  const bool isMulticam = chance.OneIn(30);
  if (isMulticam) clip.camera = chance.Below(std::size(kCameras));
}

/// Titles for the most part, among them a colour, an adjustment, a still.
void ClipDresser::SetGraphics(PlannedClip& clip) {
  const std::size_t kind = chance.Below(20);
  if (kind >= 14) return;
  clip.media = nullptr;
  clip.offset = 0;
  clip.name = words.MakeTitle(chance);
  clip.generator = kind == 0   ? Generator::kAdjustment
                   : kind == 1 ? Generator::kColour
                               : Generator::kTitle;
  if (clip.generator == Generator::kTitle) clip.font = PickFont(chance);
}

void ClipDresser::AddEffects(PlannedClip& clip) {
  const bool isPicture = context.track.kind == TrackKind::kVideo;
  if (isPicture && chance.OneIn(8)) {
    clip.effects.emplace_back().name = PickBuiltInPanel(chance);
    clip.effects.back().isBuiltIn = true;
  }
  while (clip.effects.size() < 3 && chance.OneIn(5)) {
    PlannedEffect& effect = clip.effects.emplace_back();
    effect.name = PickEffect(chance);
    effect.isMissing = chance.OneIn(9);
    effect.isDisabled = chance.OneIn(20);
    effect.amount = static_cast<int>(chance.Below(100));
  }
}

void ClipDresser::SetSpeed(PlannedClip& clip) {
  clip.speed = chance.Pick(kSpeeds);
}

void ClipDresser::SetNotes(PlannedClip& clip) {
  if (chance.OneIn(3)) {
    const auto& palette = standalone::kLabelPalette;
    clip.label = &palette[1 + chance.Below(palette.size() - 1)];
  }
  if (chance.OneIn(3)) clip.comment = words.MakeComment(chance);
  if (chance.OneIn(5)) clip.description = words.MakeDescription(chance);
  clip.isDisabled = chance.OneIn(50);
  if (!chance.OneIn(25)) return;
  PlannedMarker& marker = clip.markers.emplace_back();
  marker.name = PickMarker(chance);
  marker.position = static_cast<std::int64_t>(chance.Below(100));
}

PlannedTransition ClipDresser::MakeTransition() {
  PlannedTransition transition;
  transition.name = PickTransition(chance);
  transition.length = ToUnits(static_cast<std::int64_t>(4 + chance.Below(20)));
  transition.isMissing = chance.OneIn(30);
  return transition;
}

PlannedScene ClipDresser::MakeScene(const Shot& shot) {
  PlannedScene scene;
  scene.name = words.MakeSceneName(chance);
  scene.length = ToUnits(shot.length);
  scene.tracks.push_back(MakeSceneTrack(TrackKind::kVideo, shot, scene.length));
  scene.tracks.push_back(MakeSceneTrack(TrackKind::kVideo, shot, scene.length));
  scene.tracks.push_back(MakeSceneTrack(TrackKind::kAudio, shot, scene.length));
  return scene;
}

/// A few clips, together as long as the scene.
PlannedSceneTrack ClipDresser::MakeSceneTrack(TrackKind kind, const Shot& shot, std::int64_t length) {
  PlannedSceneTrack sceneTrack;
  sceneTrack.track.kind = kind;
  sceneTrack.track.base = context.pictureBase;
  const std::size_t clipCount = 1 + chance.Below(3);
  for (std::size_t i = 0; i < clipCount; ++i) {
    const std::vector<MediaFile>& files = context.library.Get(MediaUse::kCamera);
    PlannedClip clip;
    clip.media = i == 0 ? shot.media : &files[chance.Below(files.size())];
    clip.name = clip.media->clipName;
    clip.length = std::max<std::int64_t>(1, length / static_cast<std::int64_t>(clipCount));
    SetNotes(clip);
    sceneTrack.clips.push_back(std::move(clip));
  }
  return sceneTrack;
}

}  // namespace generator
