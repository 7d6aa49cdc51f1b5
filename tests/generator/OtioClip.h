#pragma once

#include "generator/JsonText.h"
#include "generator/PlannedItems.h"

namespace generator::otio {

/// Writes the next element of the track's children.
void AddClip(JsonText& json, const PlannedClip& clip, const PlannedTrack& track);

}  // namespace generator::otio
