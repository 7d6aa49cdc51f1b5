#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "standalone/import/OtioReader.h"

/// Timelines for tests, put together as text. `extra` of each operation is further members, each with a
/// comma in front: `, "enabled": false`.
namespace otio {

inline std::string Time(const std::string& value, const std::string& rate = "25") {
  return R"({"OTIO_SCHEMA": "RationalTime.1", "value": )" + value + R"(, "rate": )" + rate + "}";
}

inline std::string Range(const std::string& start, const std::string& duration,
                         const std::string& rate = "25") {
  return R"({"OTIO_SCHEMA": "TimeRange.1", "start_time": )" + Time(start, rate) + R"(, "duration": )" +
         Time(duration, rate) + "}";
}

inline std::string Item(const std::string& schema, const std::string& name,
                        const std::string& extra = "") {
  return R"({"OTIO_SCHEMA": ")" + schema + R"(", "name": ")" + name + "\"" + extra + "}";
}

inline std::string Clip(const std::string& name, const std::string& frames,
                        const std::string& extra = "") {
  return Item("Clip.2", name, R"(, "source_range": )" + Range("0", frames) + extra);
}

inline std::string Gap(const std::string& frames) {
  return Item("Gap.1", "", R"(, "source_range": )" + Range("0", frames));
}

inline std::string Transition(const std::string& name) {
  return Item("Transition.1", name);
}

inline std::string List(const std::vector<std::string>& elements) {
  std::string text = "[";
  for (const std::string& element : elements) {
    if (text.size() > 1) text += ",\n";
    text += element;
  }
  return text + "]";
}

inline std::string Track(const std::vector<std::string>& items, const std::string& kind = "Video",
                         const std::string& extra = "") {
  return Item("Track.1", "", R"(, "kind": ")" + kind + R"(", "children": )" + List(items) + extra);
}

inline std::string Stack(const std::vector<std::string>& children, const std::string& name = "",
                         const std::string& extra = "") {
  return Item("Stack.1", name, R"(, "children": )" + List(children) + extra);
}

inline std::string Timeline(const std::vector<std::string>& tracks, const std::string& extra = "") {
  return Item("Timeline.1", "Cut", R"(, "tracks": )" + Stack(tracks) + extra);
}

/// `, "metadata": {"sequence_index": {…}}`
inline std::string Index(const std::string& members) {
  return R"(, "metadata": {"sequence_index": {)" + members + "}}";
}

/// `, "media_references": {…}` with one reference in use.
inline std::string Media(const std::string& reference) {
  return R"(, "media_references": {"DEFAULT_MEDIA": )" + reference +
         R"(}, "active_media_reference_key": "DEFAULT_MEDIA")";
}

inline std::string File(const std::string& url, const std::string& extra = "") {
  return Item("ExternalReference.1", "", R"(, "target_url": ")" + url + "\"" + extra);
}

/// Reads a text as if it were the content of /cut/scene.otio.
inline standalone::ImportResult Read(const std::string& text) {
  return standalone::OtioReader().Read(text, standalone::DescribeFile("/cut/scene.otio"), {});
}

/// The first clip of the first track of a timeline that has only this item.
inline standalone::ClipDraft ReadOnly(const std::string& item, const std::string& kind = "Video") {
  standalone::ImportResult result = Read(Timeline({Track({item}, kind)}));
  return std::move(result.document.sequences.at(0).tracks.at(0).items.at(0).clip.value());
}

}  // namespace otio
