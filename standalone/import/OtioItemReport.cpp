#include "standalone/import/OtioItemReport.h"

#include <string>

namespace standalone {
namespace {

void CountList(JsonValue object, JsonKey key, OtioRemark remark, OtioImport& import,
               const OtioPlace& place) {
  const JsonValue list = object[key];
  const std::size_t count = list.GetElements().Count();
  if (count > 0) import.GetReport().Count(remark, place, *list.begin(), count);
}

bool HasLength(JsonValue offset) {
  const OtioTimeReading reading = ReadOtioTime(offset);
  return reading.time && reading.time->value.units != 0;
}

/// Whether the clip leaves out the beginning of its media; media that tell no start begin at zero.
bool BeginsLater(const OtioTimeReading& start, const OtioTimeReading& first) {
  if (!start.time) return false;
  if (!first.time) return start.time->value.units != 0;
  if (first.time->value == start.time->value && first.time->rate == start.time->rate) return false;
  return ToTicks(*first.time) != ToTicks(*start.time);
}

}  // namespace

void ReportTimelineStack(JsonValue stack, OtioImport& import, const OtioPlace& place) {
  CountList(stack, JsonKey::kMarkers, OtioRemark::kTimelineMarkers, import, place);
  CountList(stack, JsonKey::kEffects, OtioRemark::kTimelineEffects, import, place);
}

void ReportTrack(JsonValue track, OtioImport& import, const OtioPlace& place) {
  CountList(track, JsonKey::kMarkers, OtioRemark::kTrackMarkers, import, place);
  CountList(track, JsonKey::kEffects, OtioRemark::kTrackEffects, import, place);
}

void ReportGap(JsonValue gap, OtioImport& import, const OtioPlace& place) {
  CountList(gap, JsonKey::kMarkers, OtioRemark::kGapMarkers, import, place);
  CountList(gap, JsonKey::kEffects, OtioRemark::kGapEffects, import, place);
}

void ReportMarkers(JsonValue item, OtioImport& import, const OtioPlace& place) {
  CountList(item, JsonKey::kMarkers, OtioRemark::kClipMarkers, import, place);
}

void ReportTransition(JsonValue transition, OtioImport& import, const OtioPlace& place) {
  if (!HasLength(transition[JsonKey::kInOffset]) && !HasLength(transition[JsonKey::kOutOffset])) return;
  import.GetReport().Count(OtioRemark::kTransitionLengths, place, transition);
}

void ReportClipRange(JsonValue clip, const OtioRange& own, const OtioRange& available,
                     OtioImport& import, const OtioPlace& place) {
  if (own.isPresent) {
    if (BeginsLater(own.start, available.start)) {
      import.GetReport().Count(OtioRemark::kBeginningsInMedia, place, clip);
    }
  } else if (available.duration.time) {
    import.GetReport().Count(OtioRemark::kLengthsOfMedia, place, clip);
  }
}

void ReportRate(const OtioTimeReading& reading, JsonValue object, OtioImport& import,
                const OtioPlace& place) {
  if (reading.roundedRate.empty() || !reading.rate) return;
  import.GetReport().CountRoundedRate(place, object, reading.roundedRate, *reading.rate);
}

}  // namespace standalone
