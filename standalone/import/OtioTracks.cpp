#include "standalone/import/OtioTracks.h"

#include <optional>
#include <string>
#include <utility>

namespace standalone {
namespace {

/// Early files leave the kind empty for picture tracks.
std::optional<TrackKind> ReadTrackKind(JsonValue track) {
  const std::string_view kind = track[JsonKey::kKind].GetText();
  if (kind.empty() || kind == "Video") return TrackKind::kVideo;
  if (kind == "Audio") return TrackKind::kAudio;
  return std::nullopt;
}

class TrackFinder {
 public:
  TrackFinder(OtioImport& import, const OtioPlace& place) : import(import), place(place) {}

  void Add(JsonValue child) {
    const OtioSchema schema = import.Recognise(child, place);
    if (schema.kind == OtioKind::kTrack) {
      AddTrack(child);
    } else if (schema.kind == OtioKind::kTransition || !child.IsObject()) {
      import.AddNote(place, child, "Only tracks and items can stand in a stack; this is left out.");
    } else {
      Append(OtioTrackSource{{}, TrackKind::kVideo, {}, {child}});
    }
  }

  void AddTrack(JsonValue track) {
    const auto kind = ReadTrackKind(track);
    if (!kind) {
      NoteKind(track);
      return;
    }
    OtioTrackSource source{track, *kind, {}, {}};
    for (const JsonValue item : track[JsonKey::kChildren]) source.items.push_back(item);
    Append(std::move(source));
  }

  std::vector<OtioTrackSource> TakeSources() { return std::move(sources); }

 private:
  void Append(OtioTrackSource source) {
    const bool isVideo = source.kind == TrackKind::kVideo;
    int& count = isVideo ? videoCount : audioCount;
    source.label = (isVideo ? "V" : "A") + std::to_string(++count);
    sources.push_back(std::move(source));
  }

  void NoteKind(JsonValue track) {
    const std::string name = track[JsonKey::kName].GetString();
    OtioPlace trackPlace = place;
    trackPlace.itemWord = "track";
    trackPlace.itemName = name;
    import.AddNote(trackPlace, track,
                   "Tracks of the kind \"" + track[JsonKey::kKind].GetString() +
                       "\" hold neither picture nor sound and are not shown.");
  }

  OtioImport& import;
  const OtioPlace& place;
  int videoCount = 0;
  int audioCount = 0;
  std::vector<OtioTrackSource> sources;
};

}  // namespace

std::vector<OtioTrackSource> FindOtioTracks(JsonValue composition, OtioImport& import,
                                            const OtioPlace& place) {
  TrackFinder finder(import, place);
  const OtioKind kind = GetOtioSchema(composition).kind;
  if (kind == OtioKind::kStack) {
    for (const JsonValue child : composition[JsonKey::kChildren]) finder.Add(child);
  } else if (composition.HasValue()) {
    finder.Add(composition);
  }
  return finder.TakeSources();
}

}  // namespace standalone
