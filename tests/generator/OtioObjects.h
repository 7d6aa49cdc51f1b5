#pragma once

#include <cstdint>
#include <string_view>

#include "generator/JsonText.h"
#include "generator/MediaFile.h"
#include "generator/TimeBase.h"

/// The small objects of the format, each a member of the object that is open.
namespace generator::otio {

void AddTime(JsonText& json, std::string_view key, std::int64_t value, const TimeBase& base);
void AddRange(JsonText& json, std::string_view key, std::int64_t start, std::int64_t duration,
              const TimeBase& base);
/// Opens an object with its schema.
void OpenObject(JsonText& json, std::string_view schema);
void OpenObject(JsonText& json, std::string_view key, std::string_view schema);
void AddEmptyObject(JsonText& json, std::string_view key);
void AddEmptyList(JsonText& json, std::string_view key);
void AddBool(JsonText& json, std::string_view key, bool value);

/// The references of a clip on such a track, and which one plays.
void AddMediaReferences(JsonText& json, const MediaFile& file, standalone::TrackKind kind);

}  // namespace generator::otio
