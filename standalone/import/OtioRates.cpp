#include "standalone/import/OtioRates.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <numeric>

#include "standalone/import/OtioMedia.h"

namespace standalone {
namespace {

/// A rate in metadata: a number or a text such as "30000/1001".
std::optional<Rate> ReadNamedRate(JsonValue value) {
  return ParseRate(value.GetText().empty() ? value.GetNumber() : value.GetText());
}

/// The range that gives an item its duration.
OtioRange ReadTrimmedRange(JsonValue item) {
  const OtioRange own = ReadOtioRange(item[JsonKey::kSourceRange]);
  if (own.isPresent) return own;
  return ReadOtioRange(FindActiveMedia(item)[JsonKey::kAvailableRange]);
}

/// Durations counted in one fine time base, to find the frame that all of them are multiples of.
class CommonStep {
 public:
  void Add(const RationalTime& duration) {
    if (!base) base = duration.rate;
    if (duration.rate != *base || duration.value.units % kUnitsPerOne != 0) return;
    divisor = std::gcd(divisor, static_cast<std::int64_t>(duration.value.units / kUnitsPerOne));
  }

  /// Pulled rates first: whole multiples of 1001 don't come about by chance.
  std::optional<Rate> FindFrameRate() const {
    constexpr std::array kFrameRates = {
        Rate{24000, 1001}, Rate{30000, 1001},  Rate{60000, 1001}, Rate{24, 1},
        Rate{25, 1},       Rate{30, 1},        Rate{48, 1},       Rate{50, 1},
        Rate{60, 1},       Rate{120000, 1001}, Rate{120, 1},
    };
    if (!base || divisor == 0) return std::nullopt;
    for (const Rate& rate : kFrameRates) {
      const Wide step = Wide{base->numerator} * rate.denominator;
      const Wide count = Wide{base->denominator} * rate.numerator;
      if (step % count == 0 && divisor % (step / count) == 0) return rate;
    }
    return std::nullopt;
  }

 private:
  std::optional<Rate> base;
  std::int64_t divisor = 0;
};

/// Looks for the first picture rate that items of a kind of track are counted in.
class ItemRateSearch {
 public:
  explicit ItemRateSearch(TrackKind kind) : kind(kind) {}

  std::optional<Rate> FindIn(const std::vector<OtioTrackSource>& tracks) {
    for (const OtioTrackSource& track : tracks) {
      if (track.kind != kind) continue;
      for (const JsonValue item : track.items) {
        if (const auto rate = FindIn(item)) return rate;
      }
    }
    return std::nullopt;
  }

  /// Of the items that FindIn() has looked at.
  std::optional<Rate> FindCommonStep() const { return step.FindFrameRate(); }

 private:
  /// A nested item without a range is as long as its content, which is searched in its place: without
  /// a call for each level, since it may be nested in any depth.
  std::optional<Rate> FindIn(JsonValue item) {
    waiting.assign(1, item);
    while (!waiting.empty()) {
      const JsonValue next = waiting.back();
      waiting.pop_back();
      if (const auto rate = FindOf(next)) return rate;
      if (!next[JsonKey::kSourceRange].HasValue()) WaitForContent(next);
    }
    return std::nullopt;
  }

  void WaitForContent(JsonValue item) {
    const auto first = static_cast<std::ptrdiff_t>(waiting.size());
    for (const JsonValue child : item[JsonKey::kChildren]) {
      if (nestedLeft == 0) break;
      --nestedLeft;
      const bool isSound = child[JsonKey::kKind].GetText() == "Audio";
      if (!isSound || kind == TrackKind::kAudio) waiting.push_back(child);
    }
    std::reverse(waiting.begin() + first, waiting.end());
  }

  /// Of video, the rate of the item or of its media.
  std::optional<Rate> FindOf(JsonValue item) {
    const OtioRange range = ReadTrimmedRange(item);
    const auto rate = range.GetRate();
    if (rate && rate->IsPictureRate()) return rate;
    if (!rate || kind != TrackKind::kVideo) return std::nullopt;
    const JsonValue media = FindActiveMedia(item);
    const auto mediaRate = ReadMediaRate(
        {media, GetOtioSchema(media).kind, ReadOtioRange(media[JsonKey::kAvailableRange])},
        TrackKind::kVideo);
    if (!mediaRate && range.duration.time) step.Add(*range.duration.time);
    return mediaRate;
  }

  TrackKind kind;
  CommonStep step;
  std::vector<JsonValue> waiting;
  /// Every nested sequence searches its own content again. Real ones tell their rate with one of their
  /// first items; the bound keeps a broken file from taking the square of its size.
  std::size_t nestedLeft = 10'000;
};

std::optional<Rate> FindSampleRate(const std::vector<OtioTrackSource>& tracks) {
  for (const OtioTrackSource& track : tracks) {
    if (track.kind != TrackKind::kAudio) continue;
    for (const JsonValue item : track.items) {
      const auto rate = ReadTrimmedRange(item).GetRate();
      if (rate && !rate->IsPictureRate()) return rate;
    }
  }
  return std::nullopt;
}

struct FoundRate {
  Rate rate;
  OtioRateSource source;
};

FoundRate FindVideoRate(JsonValue timeline, const std::vector<OtioTrackSource>& tracks,
                        std::optional<Rate> parent) {
  const auto named = ReadNamedRate(GetIndexMetadata(timeline)[JsonKey::kFrameRate]);
  if (named && named->IsPictureRate()) return {*named, OtioRateSource::kMetadata};
  const auto start = ReadOtioTime(timeline[JsonKey::kGlobalStartTime]).rate;
  if (start && start->IsPictureRate()) return {*start, OtioRateSource::kStartTime};
  ItemRateSearch videoSearch(TrackKind::kVideo);
  if (const auto video = videoSearch.FindIn(tracks)) return {*video, OtioRateSource::kVideoItem};
  if (const auto step = videoSearch.FindCommonStep()) return {*step, OtioRateSource::kVideoLengths};
  const auto audio = ItemRateSearch(TrackKind::kAudio).FindIn(tracks);
  if (audio) return {*audio, OtioRateSource::kAudioItem};
  if (parent) return {*parent, OtioRateSource::kParent};
  return {Rate{24, 1}, OtioRateSource::kNothing};
}

}  // namespace

OtioSequenceRate FindOtioRates(JsonValue timeline, const std::vector<OtioTrackSource>& tracks,
                               std::optional<Rate> parent) {
  OtioSequenceRate rates;
  const FoundRate video = FindVideoRate(timeline, tracks, parent);
  rates.video = video.rate;
  rates.videoSource = video.source;
  const auto named = ReadNamedRate(GetIndexMetadata(timeline)[JsonKey::kAudioRate]);
  rates.isAudioRateNamed = named.has_value();
  rates.audio = named ? *named : FindSampleRate(tracks).value_or(Rate{48000, 1});
  return rates;
}

}  // namespace standalone
