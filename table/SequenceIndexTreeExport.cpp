#include <cstddef>
#include <cstdint>
#include <future>
#include <span>
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
/// To start a thread takes about as long as to write a hundred rows.
constexpr std::size_t kRowsForTwoThreads = 4096;

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

using RowSpan = std::span<const TrackItemRowData>;

void AppendRows(qelcore::oUTF8StringStream& stream, const std::vector<ColumnID>& columns, RowSpan rows,
                qelmediatypes::TickTime zeroPoint) {
  FieldTexts fields(zeroPoint);
  for (const TrackItemRowData& row : rows) {
    fields.SetRow(row);
    AppendLine(stream, columns, [&](ColumnID column, std::size_t) { return fields.Get(column); });
  }
}

// Long tables are written by two threads, half the rows each. The second is no thread of the host's
// pool, where a build may be waiting for the mutex that the export holds.
void AppendAllRows(qelcore::oUTF8StringStream& stream, const std::vector<ColumnID>& columns,
                   RowSpan rows, qelmediatypes::TickTime zeroPoint) {
  if (rows.size() < kRowsForTwoThreads) return AppendRows(stream, columns, rows, zeroPoint);
  const std::size_t half = rows.size() / 2;
  qelcore::oUTF8StringStream rest;
  // Where the system has no thread left, the rest is written when it is asked for.
  auto writing = std::async(std::launch::async | std::launch::deferred,
                            [&] { AppendRows(rest, columns, rows.subspan(half), zeroPoint); });
  AppendRows(stream, columns, rows.first(half), zeroPoint);
  writing.get();
  stream << rest.str();
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
  AppendAllRows(text, columns, currentFilteredList, BE::SequenceUtils::GetZeroPoint(sequence));
  WriteWholeFile(file, text.str());
  return true;
}

}  // namespace Vantrel
