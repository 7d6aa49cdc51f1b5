#pragma once

#include "standalone/media/contract/MediaReading.h"

namespace standalone {

/// A rate that a file states as it is; one that was measured from time stamps, and so lies within
/// 1/2500 of a rate in use, becomes that rate: 2997/100 is 30000/1001. (24 and 24000/1001 are 1/1000
/// apart.) Rates above 240 are no picture rates and become unknown.
MediaRatio SettlePictureRate(MediaRatio rate);

}  // namespace standalone
