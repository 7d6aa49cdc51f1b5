#include "standalone/import/OtioSequences.h"

#include <algorithm>
#include <utility>

#include "standalone/import/OtioFormat.h"
#include "standalone/import/OtioItemReport.h"

namespace standalone {
namespace {

using qelmediatypes::TickTime;

/// Stacks and tracks around each other. Real timelines have a handful; the bound keeps a broken file
/// from using up the call stack.
constexpr std::size_t kDeepestNesting = 256;

/// The last tick that a file may use; the host's open filler ends at 100 hours.
constexpr TickTime kLastTick{qelmediatypes::kOneHundredHours.GetTicks() - 1};

TrackDraft ReadTrack(const OtioTrackSource& source, OtioImport& import, const OtioPlace& place) {
  import.Expect(source.track, JsonKey::kName, JsonValue::Type::kString, place,
                "Its name is no text; it is left out.");
  import.Expect(source.track, JsonKey::kEnabled, JsonValue::Type::kBool, place,
                "\"enabled\" must be true or false; it is taken as enabled.");
  const JsonValue index = GetIndexMetadata(source.track);
  const JsonValue writer = source.track[JsonKey::kMetadata][JsonKey::kResolve];
  TrackDraft track;
  track.kind = source.kind;
  track.name = source.track[JsonKey::kName].GetString();
  track.isDisabled = !IsOtioEnabled(source.track);
  track.isMuted = index[JsonKey::kMuted].GetBool().value_or(false);
  track.isLocked = index[JsonKey::kLocked].GetBool().value_or(
      writer[JsonKey::kWriterLocked].GetBool().value_or(false));
  return track;
}

/// A range that can be used as a window: it has both times.
std::optional<OtioRange> ReadWindowRange(JsonValue composition, OtioImport& import,
                                         const OtioPlace& place) {
  const OtioRange range = ReadOtioRange(composition[JsonKey::kSourceRange]);
  if (!range.isPresent) return std::nullopt;
  if (range.start.time && range.duration.time) return range;
  import.AddNote(place, composition, "The range can't be read; the whole content is shown.");
  return std::nullopt;
}

bool ShowsNothing(const OtioRange& range, const TimeSum& length) {
  TimeSum windowEnd;
  windowEnd.Add(*range.start.time);
  windowEnd.Add(*range.duration.time);
  return windowEnd.ToTicks() <= TickTime() || ToTicks(*range.start.time) >= length.ToTicks();
}

/// Some exporters write source timecode into a track's range, which then lies beside all of its items.
/// Such a range can't be meant as a window.
std::optional<OtioRange> ReadTrackRange(const OtioTrackSource& source, OtioImport& import,
                                        const OtioPlace& place) {
  auto range = ReadWindowRange(source.track, import, place);
  if (!range) return range;
  const auto length = MeasureTrack(source);
  const bool isEmpty = length && length->ToTicks() == TickTime();
  if (!length || isEmpty || !ShowsNothing(*range, *length)) return range;
  import.AddNote(place, source.track,
                 "The track's range shows none of its items; the whole track is shown.");
  return std::nullopt;
}

/// Both windows in the stack's time: the track's items first move by its own start, then by the
/// stack's.
OtioWindow MakeWindow(const std::optional<OtioRange>& track, const std::optional<OtioRange>& stack) {
  OtioWindow window;
  window.highest = kLastTick;
  TimeSum lowest;
  if (stack) {
    window.shift.Subtract(*stack->start.time);
    lowest = window.shift;
    window.highest = std::min(window.highest, ToTicks(*stack->duration.time));
  }
  if (track) {
    TimeSum end = window.shift;
    end.Add(*track->duration.time);
    window.highest = std::min(window.highest, end.ToTicks());
    window.shift.Subtract(*track->start.time);
  }
  window.lowest = std::max(TickTime(), lowest.ToTicks());
  return window;
}

}  // namespace

SequenceDraft OtioSequenceBuilder::Build(JsonValue object) {
  std::string name = object[JsonKey::kName].GetString();
  const bool isNameless = name.empty();
  if (isNameless) name = import.GetStem();
  const bool isTimeline = GetOtioSchema(object).kind == OtioKind::kTimeline;
  const JsonValue composition = isTimeline ? object[JsonKey::kTracks] : object;
  const std::string place = timelineCount > 1 ? name : std::string();
  const JsonValue timeline = isTimeline ? object : JsonValue();
  const OtioPlace where{place, {}, {}, {}};
  if (isNameless) import.GetReport().Count(OtioRemark::kNameOfFile, where, object);
  if (!composition.IsObject()) {
    import.AddNote(where, composition.HasValue() ? composition : object,
                   "The timeline has no stack of tracks; it is shown empty.");
  }
  return BuildContent(timeline, composition, true, std::move(name), Parent{place, std::nullopt, 0})
      .sequence;
}

OtioSequenceBuilder::Content OtioSequenceBuilder::BuildContent(JsonValue timeline,
                                                               JsonValue composition, bool hasWindow,
                                                               std::string name, const Parent& parent) {
  // A track stands one level inside its stack.
  const bool isStack = GetOtioSchema(composition).kind == OtioKind::kStack;
  const std::size_t depth = parent.depth + (isStack ? 2 : 1);
  if (depth > kDeepestNesting) {
    throw ImportError(composition.GetLine(),
                      "The timeline is nested deeper than 256 levels; flatten it.");
  }
  const OtioPlace place{parent.place, {}, {}, {}};
  const std::vector<OtioTrackSource> sources = FindOtioTracks(composition, import, place);
  const OtioSequenceRate rates = FindOtioRates(timeline, sources, parent.rate);
  Content content;
  const bool isOwn = parent.depth == 0;
  const JsonValue object = timeline.HasValue() ? timeline : composition;
  ReadOtioFormat(timeline, isOwn ? object : JsonValue(), rates, import, place, content.sequence);
  if (isStack && isOwn) ReportTimelineStack(composition, import, place);
  std::optional<OtioRange> stackRange;
  if (isStack && hasWindow) stackRange = ReadWindowRange(composition, import, place);

  const OtioSequenceRates itemRates{
      content.sequence.videoRate, content.sequence.audioRate,
      (rates.isAudioRateNamed ? rates.audio : Rate{48000, 1}).ToFrameRate(), rates.isAudioRateNamed};
  const OtioNesting nest = [&](JsonValue item) {
    return BuildNested(item, Parent{parent.place, rates.video, depth});
  };
  const OtioTrackContext context{itemRates, import, nest, parent.place};
  for (const OtioTrackSource& source : sources) {
    std::optional<OtioRange> range;
    const OtioPlace trackPlace{parent.place, source.label, {}, {}};
    if (source.track.HasValue() && (isStack || hasWindow)) {
      range = ReadTrackRange(source, import, trackPlace);
      ReportTrack(source.track, import, trackPlace);
    }
    TrackDraft& track = content.sequence.tracks.emplace_back(ReadTrack(source, import, trackPlace));
    TimeSum length = LayOutTrack(source, MakeWindow(range, stackRange), context, track);
    if (range) {
      length = TimeSum();
      length.Add(*range->duration.time);
    }
    if (length.ToTicks() > content.length.ToTicks()) content.length = length;
  }
  content.sequence.name = std::move(name);
  return content;
}

OtioNestedSequence OtioSequenceBuilder::BuildNested(JsonValue item, const Parent& parent) {
  std::string name = item[JsonKey::kName].GetString();
  if (name.empty()) name = "Nested sequence";
  const std::size_t position = nestedSequences.size();
  nestedSequences.emplace_back();
  Content content =
      BuildContent(JsonValue(), item, false, name, Parent{name, parent.rate, parent.depth});
  OtioNestedSequence nested;
  nested.index = timelineCount + position;
  nested.name = std::move(name);
  nested.length = std::move(content.length);
  nested.videoRate = content.sequence.videoRate;
  nested.audioRate = content.sequence.audioRate;
  nestedSequences[position] = std::move(content.sequence);
  return nested;
}

}  // namespace standalone
