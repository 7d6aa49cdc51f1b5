#pragma once

#include <string_view>

#include "data/CellTextSource.h"
#include "data/ColumnIdentifiers.h"
#include "data/RecentTexts.h"
#include "data/TrackItemRowData.h"
#include "host/qelmediatypes/TickTime.h"

namespace Vantrel {

/// What the fields of many rows say before quoting, row after row: the texts of their cells, and for
/// "Label Color" the colour. What rows share is asked and made once. One thread at a time.
class FieldTexts {
 public:
  /// `zeroPoint` is that of the exported sequence.
  explicit FieldTexts(qelmediatypes::TickTime zeroPoint);

  /// The row whose fields are asked from now on. It stays as it is while this object is used.
  void SetRow(const TrackItemRowData& newRow);

  /// Valid until the next call. Throws: as CellTextSource::Get.
  std::string_view Get(ColumnID column) {
    return column == kColumnLabelColor ? GetColor() : cells.Get(column);
  }

 private:
  std::string_view GetColor();

  CellTextSource cells;
  RecentTexts colors;
  const TrackItemRowData* row = nullptr;
};

}  // namespace Vantrel
