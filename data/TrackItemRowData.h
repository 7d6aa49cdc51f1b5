#pragma once

#include <cstdint>
#include <vector>

#include "host/BE/MediaTypes.h"
#include "host/BE/Model.h"
#include "host/qelcore/RecyclingAllocator.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"
#include "host/qelui/Geometry.h"

namespace Vantrel {

/// One row of the Sequence Index: a clip or a gap of the sequence. A plain value, filled when the
/// sequence is visited and only read once its list is published; then [any-thread].
///
/// Facts that only filters need are not kept here; they are asked of `trackItem`.
struct TrackItemRowData {
  /// Keeps the item alive as long as the row lives. A gap has an item too, of the empty type.
  qelcore::Ref<BE::ITrackItem> trackItem;
  /// The sequence that was visited.
  qelcore::Ref<BE::ISequence> sequence;
  /// What "Clip Name" shows.
  qelcore::UTF8String name;
  /// The number of the track within its group, from 0.
  std::uint64_t trackIndex = 0;
  /// In sequence time; the end is exclusive.
  qelmediatypes::TickTime start;
  qelmediatypes::TickTime end;
  /// The duration of one frame or sample: a clip's own, a gap's from its sequence;
  /// kUnknownFrameDuration when not known.
  qelmediatypes::TickTime frameRate = qelmediatypes::kUnknownFrameDuration;
  BE::MediaType mediaType;
  /// Of picture clips with media that is read and online; empty otherwise.
  qelcore::UTF8String codec;
  /// A gap is opaque black.
  qelui::ColorRGBA labelColor;
  /// The name of the master clip.
  qelcore::UTF8String sourceClipName;
  /// Path of the proxy media, and "Online" or "Offline"; both empty without proxy.
  qelcore::UTF8String proxyPath;
  qelcore::UTF8String proxyStatus;
  /// The row's position in the full list, from 0; given when the list is numbered.
  std::uint64_t index = 0;
  /// The row's start follows, or its end precedes, a short gap.
  bool startFlagged = false;
  bool endFlagged = false;
  /// List texts (ListText.h): every name is followed by the separator.
  qelcore::UTF8String effectsMissing;
  qelcore::UTF8String effects;
  qelcore::UTF8String transitions;
  qelcore::UTF8String fontsUsed;
  qelcore::UTF8String fontsMissing;
};

/// Rows are copied from list to list at each refresh, a million at a time.
static_assert(sizeof(TrackItemRowData) < 200);

/// A row list: ordered and numbered by whoever fills it, never changed once it is shared.
using TrackItemDataList =
    std::vector<TrackItemRowData, qelcore::memory::RecyclingAllocator<TrackItemRowData>>;

}  // namespace Vantrel
