#include <cstdint>
#include <string_view>
#include <vector>

#include "export/CSVFormat.h"
#include "export/FieldTexts.h"
#include "host/BE/Utilities.h"
#include "host/qelcore/Files.h"
#include "host/qelcore/UTF8StringStream.h"
#include "table/ColumnCatalogue.h"
#include "table/DataMutexLock.h"
#include "table/SequenceIndexTree.h"

namespace Vantrel {

namespace {

using qelcore::filesupport::File;
using qelcore::filesupport::OPlatformByteStream;
using qelui::controls::UI_MultiColumnTreeHeaderRow;

constexpr bool kFailIfExists = false;

std::vector<ColumnID> GetDisplayedColumns(const UI_MultiColumnTreeHeaderRow& headerRow) {
  std::vector<ColumnID> columns(headerRow.GetCountOfColumns());
  for (std::size_t i = 0; i < columns.size(); ++i) columns[i] = headerRow.GetColumnAt(i);
  return columns;
}

qelcore::UTF8String GetHeaderText(const UI_MultiColumnTreeHeaderRow& headerRow, ColumnID column,
                                  std::size_t displayIndex) {
  qelcore::UTF8String text = headerRow.GetColumnNameUTF8(column);
  if (text.Empty()) text = GetColumnName(column);
  return text.Empty() ? NumberedColumnName(displayIndex) : text;
}

/// Appends a line of the fields that `getText(column, displayIndex)` gives.
template <typename GetText>
void AppendLine(qelcore::oUTF8StringStream& stream, const std::vector<ColumnID>& columns,
                GetText getText) {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (IsExportedColumn(columns[i])) AppendCSVField(stream, getText(columns[i], i), i, columns.size());
  }
  EndCSVLine(stream);
}

void WriteWholeFile(File& file, std::string_view text) {
  const std::uint32_t size = RequireBlockSize(text.size());
  file.Create(kFailIfExists);
  OPlatformByteStream stream(file, OPlatformByteStream::kWrite);
  stream.WriteBlock(text.data(), size);
  stream.Close();
}

}  // namespace

bool SequenceIndexTree::ExportSequenceIndexToCSV(const qelcore::UTF8String& path,
                                                 bool /*isOpenedAfterwards*/) {
  const DataMutexLock lock(dataMutex);
  const auto headerRow = GetHeaderRow();
  if (!headerRow) return false;
  const auto columns = GetDisplayedColumns(*headerRow);
  if (columns.empty()) return false;

  File file(path, qelcore::filesupport::StorageType::kPlatformFile);
  qelcore::oUTF8StringStream text;
  AppendLine(text, columns, [&](ColumnID column, std::size_t displayIndex) {
    return GetHeaderText(*headerRow, column, displayIndex);
  });
  FieldTexts fields(BE::SequenceUtils::GetZeroPoint(sequence));
  for (const TrackItemRowData& row : currentFilteredList) {
    fields.SetRow(row);
    AppendLine(text, columns, [&](ColumnID column, std::size_t) { return fields.Get(column); });
  }
  WriteWholeFile(file, text.str());
  return true;
}

}  // namespace Vantrel
