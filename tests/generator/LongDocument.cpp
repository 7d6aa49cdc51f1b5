#include "generator/LongDocument.h"

#include <string>
#include <utility>
#include <vector>

#include "generator/ClipDraft.h"
#include "generator/TimelinePlan.h"

namespace generator {
namespace {

using standalone::Boxed;
using standalone::ClipDraft;
using standalone::SequenceDraft;
using standalone::TrackDraft;
using standalone::TrackItemDraft;
using standalone::TransitionDraft;

TrackDraft MakeTrack(const PlannedTrack& planned) {
  TrackDraft track;
  track.kind = planned.kind;
  track.name = planned.name;
  track.isDisabled = planned.isDisabled;
  track.isMuted = planned.isMuted;
  track.isLocked = planned.isLocked;
  return track;
}

SequenceDraft MakeSequence(std::string name, const TimeBase& base, bool isDropFrame) {
  SequenceDraft sequence;
  sequence.name = std::move(name);
  sequence.videoRate = base.ToFrameRate();
  sequence.audioRate = kSamples.ToFrameRate();
  sequence.isDropFrame = isDropFrame;
  return sequence;
}

/// Lays items end to end.
class TrackFiller final : public ItemSink {
 public:
  TrackFiller(const PlannedTrack& planned, TrackDraft& track, bool isDropFrame,
              std::vector<SequenceDraft>& scenes)
      : planned(planned), track(track), isDropFrame(isDropFrame), scenes(scenes) {}

  void AddGap(std::int64_t length) override {
    Append(length);
    pending.reset();
  }

  void AddTransition(const PlannedTransition& transition) override {
    pending.emplace().displayName = transition.name;
    pending->isMissing = transition.isMissing;
    const bool isAfterClip = !track.items.empty() && track.items.back().clip;
    if (isAfterClip) track.items.back().clip->tailTransition = pending;
  }

  void AddClip(const PlannedClip& clip) override {
    FillClipDraft(clip, planned, AppendClip(clip.length));
  }

  void AddScene(const PlannedScene& scene) override {
    PlannedClip item;
    item.name = scene.name;
    ClipDraft& clip = AppendClip(scene.length);
    FillClipDraft(item, planned, clip);
    clip.isFrameDurationAssumed = false;
    clip.sourceClipName = scene.name;
    // The timeline itself is the first sequence.
    clip.nestedSequence = 1 + scenes.size();
    scenes.push_back(MakeSceneSequence(scene));
  }

 private:
  ClipDraft& AppendClip(std::int64_t length) {
    ClipDraft& clip = Append(length).clip.emplace();
    clip.headTransition = std::exchange(pending, {});
    return clip;
  }

  TrackItemDraft& Append(std::int64_t length) {
    TrackItemDraft& item = track.items.emplace_back();
    item.start = planned.base.ToTicks(position);
    position += length;
    item.end = planned.base.ToTicks(position);
    return item;
  }

  SequenceDraft MakeSceneSequence(const PlannedScene& scene) {
    SequenceDraft sequence = MakeSequence(scene.name, planned.base, isDropFrame);
    for (const PlannedSceneTrack& sceneTrack : scene.tracks) {
      TrackDraft& target = sequence.tracks.emplace_back(MakeTrack(sceneTrack.track));
      TrackFiller filler(sceneTrack.track, target, isDropFrame, scenes);
      for (const PlannedClip& clip : sceneTrack.clips) filler.AddClip(clip);
    }
    return sequence;
  }

  const PlannedTrack& planned;
  TrackDraft& track;
  const bool isDropFrame;
  std::vector<SequenceDraft>& scenes;
  std::int64_t position = 0;
  Boxed<TransitionDraft> pending;
};

}  // namespace

standalone::DocumentDraft MakeDocument(const TimelineShape& shape) {
  const TimelinePlan plan(shape);
  SequenceDraft sequence = MakeSequence(plan.GetName(), plan.GetPictureBase(), plan.IsDropFrame());
  sequence.zeroPoint = plan.GetPictureBase().ToTicks(plan.GetStart());
  std::vector<SequenceDraft> scenes;
  const std::vector<PlannedTrack>& tracks = plan.GetTracks();
  for (std::size_t i = 0; i < tracks.size(); ++i) {
    TrackDraft& track = sequence.tracks.emplace_back(MakeTrack(tracks[i]));
    // Room for the gaps, too.
    track.items.reserve(plan.CountClips(i) * 8 / 5);
    TrackFiller filler(tracks[i], track, plan.IsDropFrame(), scenes);
    plan.VisitTrack(i, filler);
  }
  standalone::DocumentDraft document;
  document.timelineCount = 1;
  document.sequences.push_back(std::move(sequence));
  for (SequenceDraft& scene : scenes) document.sequences.push_back(std::move(scene));
  return document;
}

}  // namespace generator
