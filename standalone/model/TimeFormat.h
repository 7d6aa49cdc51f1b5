#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// How a sequence writes its times. Timecode counts drop-frame where the sequence does.
enum class TimeFormat : std::uint8_t {
  kTimecode,
  kFrames,
  kFeetAndFrames16mm,
  kFeetAndFrames35mm,
  kAudioSamples,
  kMilliseconds,
};

/// The names of the formats, in the order of the enumeration, as timeline files and people write them.
inline constexpr std::array<std::string_view, 6> kTimeFormatNames = {
    "timecode", "frames", "feet+frames 16mm", "feet+frames 35mm", "audio samples", "milliseconds",
};

/// The format of that name, in any case of ASCII letters and with "-" or "_" in place of a blank or "+"
/// ("feet-frames-16mm"), as it is easier to type; none for any other text. [any-thread]
STANDALONE_API std::optional<TimeFormat> FindTimeFormat(std::string_view name);

}  // namespace standalone
