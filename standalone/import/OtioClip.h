#pragma once

#include "standalone/import/OtioImport.h"
#include "standalone/import/OtioMedia.h"
#include "standalone/model/SequenceDraft.h"

namespace standalone {

/// The rates of the sequence that an item stands in.
struct OtioSequenceRates {
  qelmediatypes::FrameRate video;
  /// Of gaps.
  qelmediatypes::FrameRate audio;
  /// Of sound whose file does not tell its sample rate.
  qelmediatypes::FrameRate unknownAudio;
  /// Whether the timeline names that rate.
  bool isUnknownAudioNamed = false;
};

// Each of these fills an empty draft where it stays: drafts are large.

/// A clip, as it stands on a track of that kind.
void ReadOtioClip(JsonValue clip, const OtioReference& reference, TrackKind kind,
                  const OtioSequenceRates& rates, OtioImport& import, const OtioPlace& place,
                  ClipDraft& draft);

/// A stack or track inside a track: a clip that plays another sequence. Its frame rate and the sequence
/// are the caller's to set.
void ReadOtioNestedItem(JsonValue item, OtioImport& import, const OtioPlace& place, ClipDraft& draft);

/// An object of unknown kind that takes time on a track: a clip of which no media is known.
void ReadOtioUnknownItem(JsonValue item, OtioImport& import, const OtioPlace& place, ClipDraft& draft);

}  // namespace standalone
