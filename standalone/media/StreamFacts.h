#pragma once

#include "standalone/media/Demuxer.h"
#include "standalone/media/contract/MediaReading.h"

namespace standalone {

/// What the streams are known to be so far.
MediaFacts CollectFacts(const Demuxer& demuxer);

/// Whether something lacks that reading on may find: the streams themselves, a picture's size, the rate
/// of a picture that moves, the rate of sound. (The duration alone is not worth it.)
bool LacksFacts(const MediaFacts& facts);

}  // namespace standalone
