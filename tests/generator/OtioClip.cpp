#include "generator/OtioClip.h"

#include <string>

#include "generator/OtioObjects.h"
#include "generator/Words.h"

namespace generator::otio {
namespace {

using standalone::TrackKind;

std::string FormatColor(const ZSL::Color& color) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text = "#";
  for (const unsigned channel : {color.red, color.green, color.blue}) {
    text.append({kDigits[channel >> 4U], kDigits[channel & 15U]});
  }
  return text;
}

void AddMulticam(JsonText& json, const PlannedClip& clip) {
  if (!clip.camera) return;
  json.OpenObject("multicam");
  json.OpenList("angles");
  for (const std::string_view camera : kCameras) json.AddElement(camera);
  json.CloseList();
  json.AddText("camera", kCameras[*clip.camera]);
  AddBool(json, "is_multicam", true);
  json.CloseObject();
}

/// The tape stands where edit lists keep it.
void AddEditListNotes(JsonText& json, const PlannedClip& clip) {
  if (clip.media == nullptr || clip.media->tape.empty()) return;
  json.OpenObject("cmx_3600");
  json.AddText("reel", clip.media->tape);
  json.CloseObject();
}

bool HasOwnNotes(const PlannedClip& clip) {
  const bool hasText = !clip.comment.empty() || !clip.description.empty();
  return hasText || clip.label != nullptr || clip.camera || clip.generator == Generator::kAdjustment;
}

void AddOwnNotes(JsonText& json, const PlannedClip& clip) {
  if (!HasOwnNotes(clip)) return;
  json.OpenObject("sequence_index");
  if (clip.generator == Generator::kAdjustment) AddBool(json, "adjustment", true);
  if (!clip.comment.empty()) json.AddText("comment", clip.comment);
  if (!clip.description.empty()) json.AddText("description", clip.description);
  if (clip.label != nullptr) json.AddText("label_color", FormatColor(clip.label->color));
  AddMulticam(json, clip);
  json.CloseObject();
}

/// What a studio's own tools keep with a clip; no reader looks at it.
void AddForeignNotes(JsonText& json, const PlannedClip& clip) {
  if (clip.linkGroup % 4 != 1) return;
  json.OpenObject("studio_pipeline");
  json.AddNumber("link_group", static_cast<std::int64_t>(clip.linkGroup));
  json.AddText("shot", "sh" + PadNumber(clip.linkGroup % 100'000'000 * 10, 6));
  json.OpenList("tags");
  json.AddElement(clip.length % 2 == 0 ? "day" : "night");
  json.CloseList();
  json.CloseObject();
}

void AddMetadata(JsonText& json, const PlannedClip& clip) {
  json.OpenObject("metadata");
  AddEditListNotes(json, clip);
  AddOwnNotes(json, clip);
  AddForeignNotes(json, clip);
  json.CloseObject();
}

/// Built-in panels have their name in the metadata alone.
void AddEffect(JsonText& json, const PlannedEffect& effect) {
  OpenObject(json, "Effect.1");
  json.OpenObject("metadata");
  if (effect.isBuiltIn) {
    json.OpenObject("Resolve_OTIO");
    json.AddText("Effect Name", effect.name);
    json.CloseObject();
  } else {
    json.AddNumber("amount", effect.amount);
  }
  if (effect.isMissing) {
    json.OpenObject("sequence_index");
    AddBool(json, "missing", true);
    json.CloseObject();
  }
  json.CloseObject();
  json.AddText("name", effect.isBuiltIn ? "" : effect.name);
  json.AddText("effect_name", effect.name);
  if (effect.isDisabled) AddBool(json, "enabled", false);
  json.CloseObject();
}

void AddSpeed(JsonText& json, const PlannedClip& clip) {
  if (clip.speed == 100) return;
  OpenObject(json, clip.speed == 0 ? "FreezeFrame.1" : "LinearTimeWarp.1");
  AddEmptyObject(json, "metadata");
  json.AddText("name", "Speed");
  json.AddText("effect_name", clip.speed == 0 ? "FreezeFrame" : "LinearTimeWarp");
  AddBool(json, "enabled", true);
  const int share = clip.speed < 0 ? -clip.speed : clip.speed;
  const std::string sign = clip.speed < 0 ? "-" : "";
  json.AddLiteral("time_scalar", sign + std::to_string(share / 100) + "." +
                                     PadNumber(static_cast<std::size_t>(share % 100), 2));
  json.CloseObject();
}

void AddEffects(JsonText& json, const PlannedClip& clip) {
  if (clip.effects.empty() && clip.speed == 100) return;
  json.OpenList("effects");
  for (const PlannedEffect& effect : clip.effects) AddEffect(json, effect);
  AddSpeed(json, clip);
  json.CloseList();
}

void AddMarkers(JsonText& json, const PlannedClip& clip, const TimeBase& base) {
  if (clip.markers.empty()) return;
  json.OpenList("markers");
  for (const PlannedMarker& marker : clip.markers) {
    OpenObject(json, "Marker.2");
    AddEmptyObject(json, "metadata");
    json.AddText("name", marker.name);
    json.AddText("color", "RED");
    AddRange(json, "marked_range", marker.position, 1, base);
    json.AddText("comment", "");
    json.CloseObject();
  }
  json.CloseList();
}

void AddGenerator(JsonText& json, const PlannedClip& clip) {
  json.OpenObject("media_references");
  OpenObject(json, "DEFAULT_MEDIA", "GeneratorReference.1");
  AddEmptyObject(json, "metadata");
  json.AddText("name", "");
  json.AddLiteral("available_range", "null");
  const bool isTitle = clip.generator == Generator::kTitle;
  json.AddText("generator_kind", isTitle ? "Text" : "SolidColor");
  json.OpenObject("parameters");
  if (isTitle) {
    json.AddText("font", clip.font);
    json.AddNumber("size", 48);
    json.AddText("text", clip.name);
  }
  json.CloseObject();
  json.CloseObject();
  json.CloseObject();
  json.AddText("active_media_reference_key", "DEFAULT_MEDIA");
}

}  // namespace

void AddClip(JsonText& json, const PlannedClip& clip, const PlannedTrack& track) {
  OpenObject(json, "Clip.2");
  if (!clip.isWithoutMedia) AddMetadata(json, clip);
  json.AddText("name", clip.name);
  const bool hasPictures = clip.media != nullptr && track.kind == TrackKind::kVideo;
  const std::int64_t first = hasPictures ? clip.media->firstFrame : 0;
  AddRange(json, "source_range", first + clip.offset, clip.length, track.base);
  AddEffects(json, clip);
  AddMarkers(json, clip, track.base);
  if (clip.isDisabled) AddBool(json, "enabled", false);
  if (clip.media != nullptr) {
    AddMediaReferences(json, *clip.media, track.kind);
  } else if (!clip.isWithoutMedia) {
    AddGenerator(json, clip);
  }
  json.CloseObject();
}

}  // namespace generator::otio
