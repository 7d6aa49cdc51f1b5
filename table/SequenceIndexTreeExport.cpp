#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "export/AppendRows.h"
#include "export/CSVFormat.h"
#include "export/CSVLines.h"
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

void AppendHeader(qelcore::oUTF8StringStream& stream, const UI_MultiColumnTreeHeaderRow& headerRow,
                  const std::vector<ColumnID>& columns) {
  CSVLines lines(columns.size());
  char* next = lines.Begin();
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!IsExportedColumn(columns[i])) continue;
    next = lines.AddField(next, GetHeaderText(headerRow, columns[i], i));
    next = CSVLines::AddComma(next, HasCommaAfter(i, columns.size()));
  }
  next = lines.End(next);
  stream << lines.GetFrom(0, next);
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
  AppendHeader(text, *headerRow, columns);
  AppendRows(text, columns, currentFilteredList, BE::SequenceUtils::GetZeroPoint(sequence));
  WriteWholeFile(file, text.str());
  return true;
}

}  // namespace Vantrel
