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
  TrackFinder(OtioImport& import, const OtioPlace& place, bool isInStack)
      : import(import), place(place), isInStack(isInStack) {}

  void Add(JsonValue child) {
    const OtioSchema schema = import.Recognise(child, place);
    if (schema.kind == OtioKind::kTrack) {
      AddTrack(child);
    } else if (schema.kind == OtioKind::kTransition || !child.IsObject()) {
      import.AddNote(place, child, "Only tracks and items can stand in a stack; this is left out.");
    } else {
      const OtioPlace trackPlace = Append(OtioTrackSource{{}, TrackKind::kVideo, {}, child.GetAlone()});
      if (isInStack) import.GetReport().Count(OtioRemark::kTracksAroundItems, trackPlace, child);
    }
  }

  std::vector<OtioTrackSource> TakeSources() { return std::move(sources); }

 private:
  void AddTrack(JsonValue track) {
    const auto kind = ReadTrackKind(track);
    if (!kind) {
      NoteKind(track);
      return;
    }
    const OtioPlace trackPlace = Append(OtioTrackSource{track, *kind, {}, {}});
    const JsonValue written = import.Expect(track, JsonKey::kKind, JsonValue::Type::kString, trackPlace,
                                            "Its kind is no text; it is taken for a picture track.");
    if (written.GetText().empty()) {
      import.GetReport().Count(OtioRemark::kTrackKinds, trackPlace, track);
    }
    const JsonValue items = import.Expect(track, JsonKey::kChildren, JsonValue::Type::kArray,
                                          trackPlace, "Its children are no list; they are left out.");
    sources.back().items = items.GetElements();
  }

  OtioPlace Append(OtioTrackSource source) {
    const bool isVideo = source.kind == TrackKind::kVideo;
    int& count = isVideo ? videoCount : audioCount;
    source.label = (isVideo ? "V" : "A") + std::to_string(++count);
    sources.push_back(std::move(source));
    return OtioPlace{place.sequence, sources.back().label, {}, {}};
  }

  void NoteKind(JsonValue track) {
    const OtioPlace trackPlace{place.sequence, {}, "track", track[JsonKey::kName].GetText()};
    const std::size_t count = track[JsonKey::kChildren].GetElements().Count();
    import.AddNote(trackPlace, track,
                   "A track of the kind \"" + track[JsonKey::kKind].GetString() + "\" with " +
                       std::to_string(count) + (count == 1 ? " item" : " items") +
                       " holds neither picture nor sound; it is not shown.");
  }

  OtioImport& import;
  const OtioPlace& place;
  bool isInStack;
  int videoCount = 0;
  int audioCount = 0;
  std::vector<OtioTrackSource> sources;
};

}  // namespace

std::vector<OtioTrackSource> FindOtioTracks(JsonValue composition, OtioImport& import,
                                            const OtioPlace& place) {
  const bool isStack = GetOtioSchema(composition).kind == OtioKind::kStack;
  TrackFinder finder(import, place, isStack);
  if (isStack) {
    const JsonValue children = import.Expect(composition, JsonKey::kChildren, JsonValue::Type::kArray,
                                             place, "The tracks are no list; they are left out.");
    for (const JsonValue child : children) finder.Add(child);
  } else if (composition.IsObject()) {
    finder.Add(composition);
  }
  return finder.TakeSources();
}

}  // namespace standalone
