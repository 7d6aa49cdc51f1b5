#include "generator/OtioObjects.h"

#include <string>

namespace generator::otio {
namespace {

using standalone::TrackKind;

/// Pictures in the file's own rate, sound in samples.
void AddAvailableRange(JsonText& json, const MediaFile& file, TrackKind kind) {
  if (!HasRange(file, kind)) {
    json.AddLiteral("available_range", "null");
    return;
  }
  const TimeBase& base = kind == TrackKind::kVideo ? file.pictureBase : kSamples;
  AddRange(json, "available_range", file.firstFrame, file.frames, base);
}

void AddOwnNotes(JsonText& json, const MediaFile& file, TrackKind kind) {
  json.OpenObject("sequence_index");
  if (!file.codec.empty()) json.AddText("codec", file.codec);
  const bool hasSize = kind == TrackKind::kVideo && file.width > 0;
  if (hasSize) json.AddNumber("height", file.height);
  if (file.availability != Availability::kUnstated) {
    AddBool(json, "offline", file.availability == Availability::kOffline);
  }
  if (hasSize) json.AddNumber("width", file.width);
  json.CloseObject();
}

void AddMetadata(JsonText& json, const MediaFile& file, TrackKind kind) {
  json.OpenObject("metadata");
  if (file.kind == MediaFile::Kind::kLost) {
    json.OpenObject("Resolve_OTIO");
    json.AddText("Media Url", file.url);
    json.CloseObject();
  }
  AddOwnNotes(json, file, kind);
  json.CloseObject();
}

void AddAddress(JsonText& json, const MediaFile& file) {
  if (file.kind == MediaFile::Kind::kFile) json.AddText("target_url", file.url);
  if (file.kind != MediaFile::Kind::kPictures) return;
  const std::size_t slash = file.url.rfind('/');
  json.AddText("target_url_base", file.url.substr(0, slash + 1));
  json.AddText("name_prefix", file.url.substr(slash + 1));
  json.AddText("name_suffix", ".exr");
  json.AddNumber("start_frame", kFirstPicture);
  json.AddNumber("frame_step", 1);
  json.AddLiteral("rate", file.pictureBase.text);
  json.AddNumber("frame_zero_padding", 4);
  json.AddText("missing_frame_policy", "error");
}

std::string_view GetSchema(const MediaFile& file) {
  switch (file.kind) {
    case MediaFile::Kind::kPictures:
      return "ImageSequenceReference.1";
    case MediaFile::Kind::kLost:
      return "MissingReference.1";
    default:
      return "ExternalReference.1";
  }
}

void AddReference(JsonText& json, const MediaFile& file, TrackKind kind) {
  OpenObject(json, "DEFAULT_MEDIA", GetSchema(file));
  AddMetadata(json, file, kind);
  json.AddText("name", file.name);
  AddAvailableRange(json, file, kind);
  AddAddress(json, file);
  json.CloseObject();
}

void AddProxy(JsonText& json, const MediaFile& file) {
  OpenObject(json, "Proxy", "ExternalReference.1");
  json.OpenObject("metadata");
  json.OpenObject("sequence_index");
  AddBool(json, "offline", file.isProxyOffline);
  json.CloseObject();
  json.CloseObject();
  json.AddText("name", "");
  json.AddLiteral("available_range", "null");
  json.AddText("target_url", file.proxyAddress);
  json.CloseObject();
}

}  // namespace

void AddTime(JsonText& json, std::string_view key, std::int64_t value, const TimeBase& base) {
  OpenObject(json, key, "RationalTime.1");
  json.AddLiteral("rate", base.text);
  json.AddLiteral("value", std::to_string(value) + ".0");
  json.CloseObject();
}

void AddRange(JsonText& json, std::string_view key, std::int64_t start, std::int64_t duration,
              const TimeBase& base) {
  OpenObject(json, key, "TimeRange.1");
  AddTime(json, "duration", duration, base);
  AddTime(json, "start_time", start, base);
  json.CloseObject();
}

void OpenObject(JsonText& json, std::string_view schema) {
  json.OpenObject();
  json.AddText("OTIO_SCHEMA", schema);
}

void OpenObject(JsonText& json, std::string_view key, std::string_view schema) {
  json.OpenObject(key);
  json.AddText("OTIO_SCHEMA", schema);
}

void AddEmptyObject(JsonText& json, std::string_view key) {
  json.OpenObject(key);
  json.CloseObject();
}

void AddEmptyList(JsonText& json, std::string_view key) {
  json.OpenList(key);
  json.CloseList();
}

void AddBool(JsonText& json, std::string_view key, bool value) {
  json.AddLiteral(key, value ? "true" : "false");
}

void AddMediaReferences(JsonText& json, const MediaFile& file, TrackKind kind) {
  json.OpenObject("media_references");
  AddReference(json, file, kind);
  if (!file.proxyAddress.empty()) AddProxy(json, file);
  json.CloseObject();
  json.AddText("active_media_reference_key", "DEFAULT_MEDIA");
}

}  // namespace generator::otio
