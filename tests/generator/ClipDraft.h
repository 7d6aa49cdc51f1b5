#pragma once

#include "generator/PlannedItems.h"
#include "standalone/model/SequenceDraft.h"

namespace generator {

/// Fills an empty draft with the clip as a reader gives it; its transitions are left to the caller.
void FillClipDraft(const PlannedClip& clip, const PlannedTrack& track, standalone::ClipDraft& draft);

}  // namespace generator
