#include "standalone/import/OtioFormat.h"

#include <string>

#include "standalone/import/OtioItemReport.h"

namespace standalone {
namespace {

using qelmediatypes::TickTime;

bool IsDropFrameRate(const Rate& rate) {
  return rate == Rate{30000, 1001} || rate == Rate{60000, 1001};
}

/// What the frame rate was taken from; empty where the file names it.
std::string_view DescribeSource(OtioRateSource source) {
  switch (source) {
    case OtioRateSource::kVideoItem:
      return "that of the first picture item";
    case OtioRateSource::kVideoLengths:
      return "of which the picture items' lengths are multiples";
    case OtioRateSource::kAudioItem:
      return "that of the first sound item";
    case OtioRateSource::kNothing:
      return "since nothing tells its frame rate";
    default:
      return {};
  }
}

/// Our own rates that can't be used.
void NoteRates(JsonValue index, const OtioSequenceRate& rates, OtioImport& import,
               const OtioPlace& place) {
  const JsonValue video = index[JsonKey::kFrameRate];
  if (video.HasValue() && rates.videoSource != OtioRateSource::kMetadata) {
    import.AddNote(place, video,
                   "\"frame_rate\" must be a rate such as 25 or \"30000/1001\"; it is left out.");
  }
  const JsonValue audio = index[JsonKey::kAudioRate];
  if (audio.HasValue() && !rates.isAudioRateNamed) {
    import.AddNote(place, audio, "\"audio_rate\" must be a rate such as 48000; it is left out.");
  }
}

TimeFormat ReadTimeFormat(JsonValue index, OtioImport& import, const OtioPlace& place) {
  const JsonValue display = index[JsonKey::kTimeDisplay];
  import.Expect(index, JsonKey::kTimeDisplay, JsonValue::Type::kString, place,
                "\"time_display\" must be a text; timecode is used.");
  const std::string_view name = display.GetText();
  if (name.empty()) return TimeFormat::kTimecode;
  const auto format = FindTimeFormat(name);
  if (!format) {
    import.AddNote(place, display,
                   "The time display \"" + std::string(name) + "\" is not known; timecode is used.");
  }
  return format.value_or(TimeFormat::kTimecode);
}

void ReadZeroPoint(JsonValue timeline, JsonValue object, OtioImport& import, const OtioPlace& place,
                   SequenceDraft& sequence) {
  const JsonValue start = timeline[JsonKey::kGlobalStartTime];
  const OtioTimeReading reading = ReadOtioTime(start);
  ReportRate(reading, start, import, place);
  if (reading.time) {
    sequence.zeroPoint = ToTicks(*reading.time);
  } else if (!reading.trouble.empty()) {
    import.AddNote(place, start,
                   "The start time " + std::string(reading.trouble) + "; the sequence starts at zero.");
  } else if (object.HasValue()) {
    import.GetReport().Count(OtioRemark::kZeroStart, place, object);
  }
}

}  // namespace

void ReadOtioFormat(JsonValue timeline, JsonValue object, const OtioSequenceRate& rates,
                    OtioImport& import, const OtioPlace& place, SequenceDraft& sequence) {
  const JsonValue index = GetIndexMetadata(timeline);
  sequence.videoRate = rates.video.ToFrameRate();
  sequence.audioRate = rates.audio.ToFrameRate();
  NoteRates(index, rates, import, place);
  const std::string_view source = DescribeSource(rates.videoSource);
  if (object.HasValue() && !source.empty()) {
    import.GetReport().Add(
        place, object,
        "Assumed: " + FormatRate(rates.video) + " frames a second, " + std::string(source) + ".");
  }
  ReadZeroPoint(timeline, object, import, place, sequence);
  const auto dropFrame = import
                             .Expect(index, JsonKey::kDropFrame, JsonValue::Type::kBool, place,
                                     "\"drop_frame\" must be true or false; it is left out.")
                             .GetBool();
  sequence.isDropFrame = dropFrame.value_or(IsDropFrameRate(rates.video));
  if (!dropFrame && sequence.isDropFrame && object.HasValue()) {
    import.GetReport().Count(OtioRemark::kDropFrame, place, object);
  }
  sequence.timeFormat = ReadTimeFormat(index, import, place);
}

}  // namespace standalone
