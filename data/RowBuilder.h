#pragma once

#include "data/ListText.h"
#include "data/TextShare.h"
#include "data/TrackItemRowData.h"
#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "host/qelmediatypes/TickTime.h"

namespace Vantrel {

/// Builds the rows of one pass over a sequence. Lives on the thread of the pass, under its read lock;
/// what all rows have in common is asked of the host once.
class RowBuilder {
 public:
  /// Appends to `rows`. Both arguments outlive the builder. Throws: null_pointer_exception for an empty
  /// sequence.
  RowBuilder(const qelcore::Ref<BE::ISequence>& sequence, TrackItemDataList& rows);
  RowBuilder(const RowBuilder&) = delete;
  RowBuilder& operator=(const RowBuilder&) = delete;

  /// Appends the row of a clip or a gap; other items, and the open filler at the end of a track, have
  /// none. Throws: null_pointer_exception naming the interface that a clip lacks; no row is appended.
  void AppendRow(const qelcore::Ref<BE::ITrackItem>& trackItem);

 private:
  void AppendGapRow(const qelcore::Ref<BE::ITrackItem>& trackItem);
  void AppendClipRow(const qelcore::Ref<BE::ITrackItem>& trackItem);
  void FillEffects(TrackItemRowData& row, const BE::IComponentOwner& components);
  void FillTransitions(TrackItemRowData& row);
  void FillFonts(TrackItemRowData& row, const BE::IComponentOwner& components);
  void FillPlace(TrackItemRowData& row, const qelcore::Ref<BE::ITrackItem>& trackItem) const;
  qelmediatypes::TickTime GetFrameDuration(const BE::MediaType& mediaType) const;

  const qelcore::Ref<BE::ISequence>& sequence;
  const qelcore::Ref<BE::IProject> parentProject;
  const qelmediatypes::TickTime videoFrameDuration;
  const qelmediatypes::TickTime audioFrameDuration;
  TrackItemDataList& rows;
  TextShare texts;
  /// Those of the clip whose row is being made.
  ListTexts lists;
};

}  // namespace Vantrel
