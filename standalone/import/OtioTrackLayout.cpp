#include "standalone/import/OtioTrackLayout.h"

#include <algorithm>
#include <utility>

#include "standalone/import/OtioEffects.h"
#include "standalone/import/OtioItemReport.h"
#include "standalone/runtime/LargePages.h"

namespace standalone {
namespace {

using qelmediatypes::TickTime;

bool IsNested(OtioKind kind) {
  return kind == OtioKind::kStack || kind == OtioKind::kTrack;
}

/// One track under construction.
class TrackLayout {
 public:
  TrackLayout(const OtioTrackSource& source, const OtioWindow& window, const OtioTrackContext& context,
              TrackDraft& track)
      : source(source), window(window), context(context), import(context.import), track(track) {}

  TimeSum LayOut();

 private:
  void PlaceItem(JsonValue item);
  void PlaceTransition(JsonValue transition);
  void PlaceGap(JsonValue gap);
  void PlaceClip(JsonValue clip);
  void PlaceNested(JsonValue item, OtioKind kind);
  void PlaceUnknown(JsonValue item, const OtioSchema& schema);

  /// Moves on by the range's duration, or stays where it can't be read, which is noted.
  void Advance(JsonValue item, std::string_view word, const OtioRange& range);
  /// The next item takes the time from the end of the last one to the position.
  void MoveToPosition();
  bool IsVisible() const;
  /// Adds an item between start and end, which is visible, cut to the window.
  TrackItemDraft& Append();
  /// The clip of such an item, to be filled.
  ClipDraft& AppendClip();
  void DropTrailingGaps();
  void NoteLooseTransition();
  void ReportOutside(const OtioPlace& place, JsonValue item);
  void NoteCut(JsonValue item);
  OtioPlace PlaceOf(std::string_view word, std::string_view name) const;

  const OtioTrackSource& source;
  const OtioWindow& window;
  const OtioTrackContext& context;
  OtioImport& import;
  TrackDraft& track;

  TimeSum position;
  TickTime start;
  TickTime end;
  bool isCut = false;
  bool isAfterTransition = false;
  /// Whether the last item of the track is a clip that the next object follows directly.
  bool isAfterClip = false;
  Boxed<TransitionDraft> pendingTransition;
  /// The pending one as long as no clip has it.
  JsonValue looseTransition;
  /// Gaps behind the last clip.
  std::size_t gapsAtEnd = 0;
  JsonValue firstGapAtEnd;
};

TimeSum TrackLayout::LayOut() {
  position.Add(window.shift);
  end = position.ToTicks();
  track.items.reserve(source.items.Count());
  PreferLargePages(track.items.data(), track.items.capacity() * sizeof(TrackItemDraft));
  for (const JsonValue item : source.items) {
    if (end >= qelmediatypes::kOneHundredHours) {
      NoteCut(item);
      break;
    }
    PlaceItem(item);
  }
  NoteLooseTransition();
  DropTrailingGaps();
  return position;
}

void TrackLayout::PlaceItem(JsonValue item) {
  import.Reach(item);
  if (!item.IsObject()) {
    import.AddNote(PlaceOf({}, {}), item,
                   "Something that is no item stands on the track; it is left out.");
    return;
  }
  const OtioSchema schema = import.Recognise(item, PlaceOf("item", item[JsonKey::kName].GetText()));
  if (schema.kind == OtioKind::kTransition) {
    PlaceTransition(item);
    return;
  }
  isAfterTransition = false;
  if (schema.kind == OtioKind::kGap) {
    PlaceGap(item);
  } else if (schema.kind == OtioKind::kClip) {
    PlaceClip(item);
  } else if (IsNested(schema.kind)) {
    PlaceNested(item, schema.kind);
  } else {
    PlaceUnknown(item, schema);
  }
  if (end > qelmediatypes::kOneHundredHours) NoteCut(item);
}

/// A transition takes no time and belongs to the clips that it touches; next to a gap it is a fade.
void TrackLayout::PlaceTransition(JsonValue transition) {
  if (isAfterTransition) {
    import.AddNote(PlaceOf("transition", transition[JsonKey::kName].GetText()), transition,
                   "Two transitions follow each other; only the first is kept.");
    return;
  }
  isAfterTransition = true;
  pendingTransition = ReadTransition(transition);
  ReportTransition(transition, import, PlaceOf("transition", transition[JsonKey::kName].GetText()));
  if (isAfterClip) {
    track.items.back().clip->tailTransition = pendingTransition;
  } else {
    looseTransition = transition;
  }
}

void TrackLayout::NoteLooseTransition() {
  const JsonValue transition = std::exchange(looseTransition, {});
  if (!transition.HasValue()) return;
  import.AddNote(PlaceOf("transition", transition[JsonKey::kName].GetText()), transition,
                 "It touches no clip; it is left out.");
}

void TrackLayout::PlaceGap(JsonValue gap) {
  NoteLooseTransition();
  Advance(gap, "gap", ReadOtioRange(gap[JsonKey::kSourceRange]));
  if (IsVisible()) Append();
  ReportGap(gap, import, PlaceOf("gap", gap[JsonKey::kName].GetText()));
  if (IsVisible() && gapsAtEnd++ == 0) firstGapAtEnd = gap;
  isAfterClip = false;
  pendingTransition.reset();
}

void TrackLayout::PlaceClip(JsonValue clip) {
  const OtioPlace place = PlaceOf("clip", clip[JsonKey::kName].GetText());
  const OtioReference reference = FindActiveReference(clip, import, place);
  const OtioRange own = ReadOtioRange(clip[JsonKey::kSourceRange]);
  Advance(clip, "clip", own.isPresent ? own : reference.availableRange);
  if (!IsVisible()) {
    ReportOutside(place, clip);
    return;
  }
  ReportMarkers(clip, import, place);
  ReportClipRange(clip, own, reference.availableRange, import, place);
  ReadOtioClip(clip, reference, source.kind, context.rates, import, place, AppendClip());
}

void TrackLayout::PlaceNested(JsonValue item, OtioKind kind) {
  const std::string_view word = kind == OtioKind::kStack ? "stack" : "track";
  const OtioNestedSequence nested = context.nest(item);
  const OtioRange range = ReadOtioRange(item[JsonKey::kSourceRange]);
  if (range.isPresent) {
    Advance(item, word, range);
  } else {
    position.Add(nested.length);
    MoveToPosition();
  }
  const OtioPlace place = PlaceOf(word, item[JsonKey::kName].GetText());
  if (!IsVisible()) {
    ReportOutside(place, item);
    return;
  }
  ReportMarkers(item, import, place);
  import.GetReport().Count(OtioRemark::kNestedContents, place, item);
  ClipDraft& clip = AppendClip();
  ReadOtioNestedItem(item, import, place, clip);
  if (clip.name.empty()) clip.name = nested.name;
  if (clip.sourceClipName.empty()) clip.sourceClipName = nested.name;
  const bool isVideo = source.kind == TrackKind::kVideo;
  clip.frameDuration = (isVideo ? nested.videoRate : nested.audioRate).GetFrameDuration();
  clip.nestedSequence = nested.index;
}

/// An object that the format's vocabulary lacks still takes its time.
void TrackLayout::PlaceUnknown(JsonValue item, const OtioSchema& schema) {
  const OtioPlace place = PlaceOf("item", item[JsonKey::kName].GetText());
  const OtioRange range = ReadOtioRange(item[JsonKey::kSourceRange]);
  if (range.duration.time) position.Add(*range.duration.time);
  MoveToPosition();
  const std::string kind = schema.name.empty()
                               ? "An object without \"OTIO_SCHEMA\""
                               : "Unknown kind of object \"" + std::string(schema.name) + "\"";
  import.AddNote(place, item,
                 kind + (range.duration.time ? "; it is shown as a clip without media."
                                             : "; it is shown as a clip without media and duration."));
  if (!IsVisible()) {
    ReportOutside(place, item);
    return;
  }
  ReportMarkers(item, import, place);
  if (item[JsonKey::kChildren].GetElements().Count() > 0) {
    import.GetReport().Count(OtioRemark::kUnknownContents, place, item);
  }
  ClipDraft& clip = AppendClip();
  ReadOtioUnknownItem(item, import, place, clip);
  if (source.kind == TrackKind::kAudio)
    clip.frameDuration = context.rates.unknownAudio.GetFrameDuration();
}

void TrackLayout::Advance(JsonValue item, std::string_view word, const OtioRange& range) {
  if (range.duration.time) position.Add(*range.duration.time);
  MoveToPosition();
  const OtioPlace place = PlaceOf(word, item[JsonKey::kName].GetText());
  ReportRate(range.duration, item, import, place);
  const bool isStartBad = !range.start.trouble.empty();
  if (range.duration.time && !isStartBad) return;
  std::string sentence = "It has no range";
  if (!range.duration.trouble.empty()) {
    sentence = "Its duration ";
    sentence += range.duration.trouble;
  } else if (isStartBad) {
    sentence = "The start of its range ";
    sentence += range.start.trouble;
  }
  sentence += range.duration.time ? "; its duration is used." : "; it is shown with duration 0.";
  import.AddNote(place, item, std::move(sentence));
}

void TrackLayout::MoveToPosition() {
  start = end;
  end = position.ToTicks();
  if (IsVisible()) return;
  isAfterClip = false;
  pendingTransition.reset();
  looseTransition = JsonValue();
}

bool TrackLayout::IsVisible() const {
  // The track's own range may end before the stack's begins.
  if (window.highest < window.lowest) return false;
  const bool isEmpty = start == end;
  if (start > window.highest || (start == window.highest && !isEmpty)) return false;
  return end > window.lowest || (end == window.lowest && isEmpty);
}

TrackItemDraft& TrackLayout::Append() {
  TrackItemDraft& item = track.items.emplace_back();
  item.start = std::max(start, window.lowest);
  item.end = std::min(end, window.highest);
  return item;
}

ClipDraft& TrackLayout::AppendClip() {
  ClipDraft& clip = Append().clip.emplace();
  clip.headTransition = std::exchange(pendingTransition, {});
  isAfterClip = true;
  looseTransition = JsonValue();
  gapsAtEnd = 0;
  return clip;
}

void TrackLayout::DropTrailingGaps() {
  while (!track.items.empty() && !track.items.back().clip) track.items.pop_back();
  import.GetReport().Count(OtioRemark::kGapsAtEnd,
                           PlaceOf("gap", firstGapAtEnd[JsonKey::kName].GetText()), firstGapAtEnd,
                           gapsAtEnd);
}

/// Past 100 hours that is told once for the track.
void TrackLayout::ReportOutside(const OtioPlace& place, JsonValue item) {
  if (!isCut) import.GetReport().Count(OtioRemark::kItemsOutsideRange, place, item);
}

void TrackLayout::NoteCut(JsonValue item) {
  if (!isCut)
    import.AddNote(PlaceOf({}, {}), item, "The track is longer than 100 hours; it is cut there.");
  isCut = true;
}

OtioPlace TrackLayout::PlaceOf(std::string_view word, std::string_view name) const {
  return OtioPlace{context.sequenceName, source.label, word, name};
}

}  // namespace

TimeSum LayOutTrack(const OtioTrackSource& source, const OtioWindow& window,
                    const OtioTrackContext& context, TrackDraft& track) {
  return TrackLayout(source, window, context, track).LayOut();
}

std::optional<TimeSum> MeasureTrack(const OtioTrackSource& source) {
  TimeSum length;
  for (const JsonValue item : source.items) {
    const OtioKind kind = GetOtioSchema(item).kind;
    OtioRange range = ReadOtioRange(item[JsonKey::kSourceRange]);
    if (!range.isPresent && IsNested(kind)) return std::nullopt;
    if (!range.isPresent) range = ReadOtioRange(FindActiveMedia(item)[JsonKey::kAvailableRange]);
    if (range.duration.time && kind != OtioKind::kTransition) length.Add(*range.duration.time);
  }
  return length;
}

}  // namespace standalone
