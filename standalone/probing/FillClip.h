#pragma once

#include "standalone/media/contract/MediaReading.h"
#include "standalone/model/SequenceDraft.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// What is known of a media file in the end.
struct MediaFile {
  MediaReading reading;
  /// Its size changed while the document's files were read.
  bool isGrowing = false;
};

/// Fills what the timeline does not tell of a clip and its media; what it tells stays. On a picture
/// track: codec with its code, frame size, picture rate, whether it is a still; on a sound track: the
/// sample rate. A file that can't be read makes the media offline, "Media file can't be read: <why>",
/// unless the timeline says that it is online. A growing file is marked so, unless the timeline tells
/// another state, and is not offline for being incomplete.
STANDALONE_API void FillClip(ClipDraft& clip, TrackKind kind, const MediaFile& file);

}  // namespace standalone
