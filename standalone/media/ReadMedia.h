#pragma once

#include "standalone/media/contract/MediaReading.h"

namespace standalone {

/// Reads one file. Throws: ReadFailure, std::bad_alloc. [any-thread]
MediaFacts ReadMedia(const MediaReadRequest& request);

}  // namespace standalone
