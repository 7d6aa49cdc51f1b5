#include "export/FieldTexts.h"

#include "export/CSVFormat.h"

namespace Vantrel {
namespace {

constexpr unsigned kColorBits = 6;

}  // namespace

FieldTexts::FieldTexts(qelmediatypes::TickTime zeroPoint)
    : cells(zeroPoint, CellTextSource::Memory::kOfManyRows), colors(kColorBits) {}

void FieldTexts::SetRow(const TrackItemRowData& newRow) {
  row = &newRow;
  cells.SetRow(newRow);
}

std::string_view FieldTexts::GetColor() {
  const std::uint32_t color = ColorFieldValue(row->labelColor);
  return colors.Get(color, [color] { return ColorFieldText(color); });
}

}  // namespace Vantrel
