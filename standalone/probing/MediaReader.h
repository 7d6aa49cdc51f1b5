#pragma once

#include <functional>

#include "standalone/media/contract/MediaReading.h"

namespace standalone {

/// Reads one media file. Called on several threads at once; must not throw.
using MediaReader = std::function<MediaReading(const MediaReadRequest& request)>;

}  // namespace standalone
