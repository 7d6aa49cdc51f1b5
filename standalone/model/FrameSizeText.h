#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// How a clip's video information is written: "1920 x 1080 (1.0)", the pixel aspect as a decimal.
STANDALONE_API std::string FormatFrameSize(std::int64_t width, std::int64_t height,
                                           std::string_view pixelAspect);

/// A pixel's width to its height as a decimal: "1.0" for square pixels, else up to four decimals,
/// "1.4222" for 64 to 45. Both above 0 and below 2^40.
STANDALONE_API std::string FormatPixelAspect(std::int64_t width, std::int64_t height);

}  // namespace standalone
