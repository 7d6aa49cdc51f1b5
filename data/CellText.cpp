#include "data/CellText.h"

#include "data/CellTextSource.h"
#include "data/StoredTexts.h"
#include "host/BE/Utilities.h"

namespace Vantrel {

using qelcore::UTF8String;
using qelmediatypes::TickTime;

UTF8String CellText(const TrackItemRowData& row, ColumnID column) {
  const bool isPosition = column == kColumnStartTime || column == kColumnEndTime;
  return CellText(row, column, isPosition ? BE::SequenceUtils::GetZeroPoint(row.sequence) : TickTime());
}

UTF8String CellText(const TrackItemRowData& row, ColumnID column, TickTime zeroPoint) {
  if (const UTF8String* const stored = FindStoredText(row, column)) return *stored;
  CellTextSource texts(zeroPoint);
  texts.SetRow(row, RowClip(row));
  return CellTextSource::GetMaker(column)(texts);
}

}  // namespace Vantrel
