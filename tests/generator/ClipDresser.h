#pragma once

#include "generator/Chance.h"
#include "generator/PlannedItems.h"
#include "generator/ShotStream.h"
#include "generator/TrackWalk.h"
#include "generator/Words.h"

namespace generator {

/// Makes clips out of shots: what an editor does to them, and notes about them.
class ClipDresser {
 public:
  ClipDresser(const TrackWalkContext& context, Chance chance);

  PlannedClip MakeClip(const Shot& shot);
  PlannedTransition MakeTransition();
  PlannedScene MakeScene(const Shot& shot);
  /// Frames as the track counts them. Sound is not cut at whole frames.
  std::int64_t ToUnits(std::int64_t frames);

 private:
  void SetContent(const Shot& shot, PlannedClip& clip);
  void SetGraphics(PlannedClip& clip);
  void AddEffects(PlannedClip& clip);
  void SetSpeed(PlannedClip& clip);
  void SetNotes(PlannedClip& clip);
  PlannedSceneTrack MakeSceneTrack(standalone::TrackKind kind, const Shot& shot, std::int64_t length);

  const TrackWalkContext& context;
  const Words words;
  Chance chance;
};

}  // namespace generator
