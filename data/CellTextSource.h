#pragma once

#include <optional>

#include "data/ColumnIdentifiers.h"
#include "data/RowClip.h"
#include "data/TimeText.h"
#include "data/TrackItemRowData.h"
#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"

namespace Vantrel {

/// The texts of cells. What the cells of a row share is asked of the host once, and so is what the rows
/// of a sequence share. One thread at a time.
///
/// The rows that were set stay as they are while this object is used, and so does what they reach.
class CellTextSource {
 public:
  /// `zeroPoint` is that of the rows' sequence.
  explicit CellTextSource(qelmediatypes::TickTime zeroPoint) : zeroPoint(zeroPoint) {}

  /// The row whose cells are asked from now on, and what is known of its clip already.
  void SetRow(const TrackItemRowData& newRow, const RowClip& newClip);

  /// Makes the text of one column's cell of the row that is set.
  /// Throws: null_pointer_exception when the row has no track item and the column asks it.
  using Maker = qelcore::UTF8String (*)(CellTextSource& self);

  /// What makes the texts of a column; what the columns show is told by CellText. Nothing is made, and
  /// nothing asked, for columns whose text the row holds, and for what is no column.
  static Maker GetMaker(ColumnID column) noexcept;

 private:
  static Maker GetClipMaker(ColumnID column) noexcept;
  template <auto kMake>
  static qelcore::UTF8String MakeOfProjectItem(CellTextSource& self);
  template <auto kMake>
  static qelcore::UTF8String MakeOfMedia(CellTextSource& self);
  template <auto kMake>
  static qelcore::UTF8String MakeOfTrackItem(CellTextSource& self);
  qelcore::UTF8String MakeTime(qelmediatypes::TickTime time);
  qelcore::UTF8String MakeUsageCount();

  const qelmediatypes::TickTime zeroPoint;
  const TrackItemRowData* row = nullptr;
  RowClip clip;
  /// Asked of the sequence of the row.
  std::optional<TimeFormat> timeFormat;
  std::optional<qelcore::Ref<BE::IProject>> project;
};

}  // namespace Vantrel
