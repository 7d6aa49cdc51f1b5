#include "generator/TrackWalk.h"

#include <algorithm>
#include <utility>

#include "generator/Chance.h"
#include "generator/ClipDresser.h"
#include "generator/ShotStream.h"

namespace generator {
namespace {

using standalone::TrackKind;

enum Stream : std::uint64_t {
  kPictureShots,
  kSoundShots,
  kPictureClips,
  kSoundClips,
  kPictureJoints,
  kSoundJoints,
  kStreams,
};

Chance MakeChance(const TrackWalkContext& context, Stream stream) {
  return {context.shape.seed, kStreams * context.place + stream};
}

bool IsPicture(const TrackWalkContext& context) {
  return context.track.kind == TrackKind::kVideo;
}

class TrackWalk {
 public:
  TrackWalk(const TrackWalkContext& context, ItemSink& sink)
      : context(context),
        sink(sink),
        shots(context.style.shots, context.library,
              MakeChance(context, FollowsPicture() ? kPictureShots : kSoundShots), context.shotCount,
              std::max<std::int64_t>(1, context.span / 4)),
        dresser(context, MakeChance(context, IsPicture(context) ? kPictureClips : kSoundClips)),
        chance(MakeChance(context, IsPicture(context) ? kPictureJoints : kSoundJoints)) {}

  void Walk() {
    for (std::size_t placed = 0; placed < context.share;) {
      const Shot shot = shots.Next();
      gap += shot.gapBefore;
      if (context.style.isLinked && shot.isSilent) {
        gap += shot.length;
        continue;
      }
      PlaceJoint();
      PlaceItem(shot);
      ++placed;
    }
  }

 private:
  bool FollowsPicture() const { return IsPicture(context) || context.style.isLinked; }

  /// What stands before the next clip: nothing, a transition, or a gap with a fade at either side.
  void PlaceJoint() {
    if (gap == 0) {
      if (isAfterClip && chance.OneIn(20)) sink.AddTransition(dresser.MakeTransition());
      return;
    }
    if (isAfterClip && chance.OneIn(12)) sink.AddTransition(dresser.MakeTransition());
    sink.AddGap(dresser.ToUnits(std::exchange(gap, 0)));
    if (chance.OneIn(12)) sink.AddTransition(dresser.MakeTransition());
  }

  void PlaceItem(const Shot& shot) {
    isAfterClip = true;
    const bool canNest =
        IsPicture(context) && context.style.shots.media == MediaUse::kCamera && !context.shape.isLean;
    if (canNest && chance.OneIn(400)) {
      sink.AddScene(dresser.MakeScene(shot));
    } else {
      sink.AddClip(dresser.MakeClip(shot));
    }
  }

  const TrackWalkContext& context;
  ItemSink& sink;
  ShotStream shots;
  ClipDresser dresser;
  Chance chance;
  std::int64_t gap = 0;
  bool isAfterClip = false;
};

}  // namespace

void WalkTrack(const TrackWalkContext& context, ItemSink& sink) {
  TrackWalk(context, sink).Walk();
}

}  // namespace generator
