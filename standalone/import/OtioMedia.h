#pragma once

#include <optional>
#include <string>

#include "standalone/import/OtioImport.h"
#include "standalone/import/OtioTime.h"
#include "standalone/model/SequenceDraft.h"

namespace standalone {

/// A clip's media reference in use.
struct OtioReference {
  /// None when the clip has no media at all.
  JsonValue object;
  OtioKind kind = OtioKind::kMissingReference;
  /// What there is of it.
  OtioRange availableRange = {};
};

/// The media that the clip's active key names, or the only one of older files; none when there is none.
JsonValue FindActiveMedia(JsonValue clip);

/// The reference that the clip's active key names, or the only one of older files. A key that names no
/// entry is noted and taken as missing media.
OtioReference FindActiveReference(JsonValue clip, OtioImport& import, const OtioPlace& place);

/// The clip's proxy: the entry flagged so in our metadata, else one with "proxy" in its key that is not
/// the active one.
OtioReference FindProxyReference(JsonValue clip, OtioImport& import, const OtioPlace& place);

/// The address of a reference's file; of an image sequence, the first picture.
LocatedMedia& ReadReferenceAddress(const OtioReference& reference, OtioImport& import);

/// A missing reference is offline, and so is a file that does not exist; generators never are. The
/// flags of our metadata win over both, so a timeline can travel without its media and still tell what
/// was online where it was written.
MediaDraft ReadMedia(const OtioReference& reference, OtioImport& import, const OtioPlace& place);

/// The picture rate or sample rate that the reference is counted in, by the kind of track: a picture
/// rate is at most 240 a second, a sample rate above.
std::optional<Rate> ReadMediaRate(const OtioReference& reference, TrackKind kind);

/// "1920 x 1080 (1.0)" from the reference's frame size and pixel aspect; empty without a size.
std::string ReadFrameSize(JsonValue reference);

}  // namespace standalone
