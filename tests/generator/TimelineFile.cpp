#include "generator/TimelineFile.h"

#include <fstream>

#include "generator/JsonText.h"
#include "generator/OtioClip.h"
#include "generator/OtioObjects.h"
#include "generator/TimelinePlan.h"

namespace generator {
namespace {

using standalone::TrackKind;

/// What stacks and tracks have in common.
void AddPlainMembers(JsonText& json) {
  otio::AddEmptyList(json, "effects");
  otio::AddEmptyList(json, "markers");
}

/// Opens the track's object and its children.
void OpenTrack(JsonText& json, const PlannedTrack& track) {
  otio::OpenObject(json, "Track.1");
  json.OpenObject("metadata");
  json.OpenObject("sequence_index");
  otio::AddBool(json, "locked", track.isLocked);
  otio::AddBool(json, "muted", track.isMuted);
  json.CloseObject();
  json.CloseObject();
  json.AddText("name", track.name);
  json.AddLiteral("source_range", "null");
  AddPlainMembers(json);
  otio::AddBool(json, "enabled", !track.isDisabled);
  json.AddText("kind", track.kind == TrackKind::kVideo ? "Video" : "Audio");
  json.OpenList("children");
}

void CloseTrack(JsonText& json) {
  json.CloseList();
  json.CloseObject();
}

/// Writes the items of a track.
class ItemWriter final : public ItemSink {
 public:
  ItemWriter(JsonText& json, const PlannedTrack& track) : json(json), track(track) {}

  void AddGap(std::int64_t length) override {
    otio::OpenObject(json, "Gap.1");
    json.AddText("name", "");
    otio::AddRange(json, "source_range", 0, length, track.base);
    json.CloseObject();
  }

  void AddTransition(const PlannedTransition& transition) override {
    otio::OpenObject(json, "Transition.1");
    json.OpenObject("metadata");
    if (transition.isMissing) {
      json.OpenObject("sequence_index");
      otio::AddBool(json, "missing", true);
      json.CloseObject();
    }
    json.CloseObject();
    json.AddText("name", transition.name);
    otio::AddTime(json, "in_offset", transition.length, track.base);
    otio::AddTime(json, "out_offset", transition.length, track.base);
    json.AddText("transition_type", "SMPTE_Dissolve");
    json.CloseObject();
  }

  void AddClip(const PlannedClip& clip) override { otio::AddClip(json, clip, track); }

  void AddScene(const PlannedScene& scene) override {
    otio::OpenObject(json, "Stack.1");
    otio::AddEmptyObject(json, "metadata");
    json.AddText("name", scene.name);
    otio::AddRange(json, "source_range", 0, scene.length, track.base);
    AddPlainMembers(json);
    otio::AddBool(json, "enabled", true);
    json.OpenList("children");
    for (const PlannedSceneTrack& sceneTrack : scene.tracks) {
      OpenTrack(json, sceneTrack.track);
      for (const PlannedClip& clip : sceneTrack.clips) otio::AddClip(json, clip, sceneTrack.track);
      CloseTrack(json);
    }
    json.CloseList();
    json.CloseObject();
  }

 private:
  JsonText& json;
  const PlannedTrack& track;
};

void AddOwnNotes(JsonText& json, const TimelinePlan& plan) {
  json.OpenObject("metadata");
  json.OpenObject("sequence_index");
  json.AddNumber("audio_rate", kSamples.numerator);
  otio::AddBool(json, "drop_frame", plan.IsDropFrame());
  json.AddText("frame_rate", plan.GetPictureBase().name);
  json.AddText("time_display", "timecode");
  json.CloseObject();
  json.CloseObject();
}

void WritePlan(JsonText& json, const TimelinePlan& plan) {
  otio::OpenObject(json, "Timeline.1");
  AddOwnNotes(json, plan);
  json.AddText("name", plan.GetName());
  otio::AddTime(json, "global_start_time", plan.GetStart(), plan.GetPictureBase());
  otio::OpenObject(json, "tracks", "Stack.1");
  otio::AddEmptyObject(json, "metadata");
  json.AddText("name", "tracks");
  json.AddLiteral("source_range", "null");
  AddPlainMembers(json);
  json.OpenList("children");
  for (std::size_t i = 0; i < plan.GetTracks().size(); ++i) {
    OpenTrack(json, plan.GetTracks()[i]);
    ItemWriter writer(json, plan.GetTracks()[i]);
    plan.VisitTrack(i, writer);
    CloseTrack(json);
  }
  json.CloseList();
  json.CloseObject();
  json.CloseObject();
  json.Finish();
}

}  // namespace

void WriteTimeline(std::ostream& stream, const TimelineShape& shape) {
  const TimelinePlan plan(shape);
  JsonText json(stream, shape.isLean ? JsonText::Layout::kOneLine : JsonText::Layout::kMemberALine);
  WritePlan(json, plan);
}

void WriteTimeline(const std::filesystem::path& file, const TimelineShape& shape) {
  std::ofstream stream;
  stream.exceptions(std::ios::failbit | std::ios::badbit);
  stream.open(file, std::ios::binary);
  WriteTimeline(stream, shape);
  stream.close();
}

}  // namespace generator
