#pragma once

#include "standalone/import/OtioImport.h"
#include "standalone/import/OtioTime.h"

namespace standalone {

/// Counts what a timeline's stack has for itself that no row shows: markers and effects.
void ReportTimelineStack(JsonValue stack, OtioImport& import, const OtioPlace& place);
/// The same of a track.
void ReportTrack(JsonValue track, OtioImport& import, const OtioPlace& place);
/// The same of a gap.
void ReportGap(JsonValue gap, OtioImport& import, const OtioPlace& place);
/// The markers of a clip or of anything else that is a row.
void ReportMarkers(JsonValue item, OtioImport& import, const OtioPlace& place);
/// How long a transition is, unless it has no length.
void ReportTransition(JsonValue transition, OtioImport& import, const OtioPlace& place);
/// The part of its media, as far as that is `available`, that a clip plays: by its own range, or all of
/// it without one.
void ReportClipRange(JsonValue clip, const OtioRange& own, const OtioRange& available,
                     OtioImport& import, const OtioPlace& place);
/// A time whose rate is written with few decimals.
void ReportRate(const OtioTimeReading& reading, JsonValue object, OtioImport& import,
                const OtioPlace& place);

}  // namespace standalone
