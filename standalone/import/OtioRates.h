#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "standalone/import/OtioTime.h"
#include "standalone/import/OtioTracks.h"

namespace standalone {

/// What tells the frame rate of a sequence.
enum class OtioRateSource : std::uint8_t {
  kMetadata,
  kStartTime,
  kVideoItem,     ///< The first picture item that is counted in one.
  kVideoLengths,  ///< The common step of the picture items' lengths.
  kAudioItem,
  kParent,  ///< The sequence that this one is nested in.
  kNothing,
};

struct OtioSequenceRate {
  Rate video;
  OtioRateSource videoSource = OtioRateSource::kNothing;
  Rate audio;
  /// Whether the file itself names the audio rate in our metadata.
  bool isAudioRateNamed = false;
};

/// The rates of a sequence. Picture: our metadata, the start time's rate, the first video item's, the
/// first audio item's, the parent's, 24. Sound: our metadata, the first sound item's sample rate,
/// 48000. A rate above 240 is no picture rate; where video is counted in such a base alone, the frame
/// is the common step of the durations. A nested item without a range counts by what it holds.
OtioSequenceRate FindOtioRates(JsonValue timeline, const std::vector<OtioTrackSource>& tracks,
                               std::optional<Rate> parent);

}  // namespace standalone
