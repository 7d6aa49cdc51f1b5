#pragma once

#include <vector>

#include "standalone/import/OtioImport.h"
#include "standalone/model/SequenceDraft.h"

namespace standalone {

/// What becomes one track: a track object, or something that stands in a stack without one.
struct OtioTrackSource {
  /// None for a wrapped item.
  JsonValue track;
  TrackKind kind = TrackKind::kVideo;
  /// "V2".
  std::string label;
  JsonValues items;
};

/// The tracks of a stack, or of the one track or clip given, in the order of the file. Each other thing
/// in a stack gets a video track of its own. Tracks that hold neither picture nor sound are noted and
/// left out.
std::vector<OtioTrackSource> FindOtioTracks(JsonValue composition, OtioImport& import,
                                            const OtioPlace& place);

}  // namespace standalone
