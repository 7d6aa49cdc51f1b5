#include "export/AppendRows.h"

#include <algorithm>
#include <cstddef>
#include <future>
#include <string_view>
#include <vector>

#include "export/RowBlocks.h"
#include "export/RowLines.h"

namespace Vantrel {
namespace {

/// To start a thread takes about as long as to write a few hundred rows.
constexpr std::size_t kRowsForTwoThreads = 4096;

/// How many bytes all rows probably take, as the first ones tell. A little more, as room that is not
/// used costs nothing.
std::size_t EstimateBytes(std::size_t bytes, std::size_t rows, std::size_t allRows) {
  return bytes / rows * allRows / 8 * 9;
}

/// What stands below in the text, written from its last block upward.
class LowerBlocks {
 public:
  void Write(RowBlocks& blocks, RowLines lines) {
    for (auto rows = blocks.TakeFromBottom(); !rows.empty(); rows = blocks.TakeFromBottom()) {
      begins.push_back(text.str().size());
      lines.Append(text, rows);
      if (begins.size() == 1) {
        // Room for all rows: how many the other thread leaves to this one is not known.
        text.Reserve(EstimateBytes(text.str().size(), rows.size(), blocks.CountRows()));
      }
    }
  }

  void AppendTo(qelcore::oUTF8StringStream& stream) const {
    std::string_view left = text.str();
    std::for_each(begins.rbegin(), begins.rend(), [&](std::size_t begin) {
      stream << left.substr(begin);
      left = left.substr(0, begin);
    });
  }

 private:
  qelcore::oUTF8StringStream text;
  std::vector<std::size_t> begins;
};

}  // namespace

void AppendRows(qelcore::oUTF8StringStream& stream, std::span<const ColumnID> columns,
                std::span<const TrackItemRowData> rows, qelmediatypes::TickTime zeroPoint) {
  RowLines lines(columns, zeroPoint);
  if (rows.size() < kRowsForTwoThreads) return lines.Append(stream, rows);
  RowBlocks blocks(rows);
  LowerBlocks lower;
  // No thread of the host's pool, where a build may be waiting for the mutex that the export holds.
  // Where the system has no thread left, nothing remains for the second when it is asked for.
  auto writing = std::async(std::launch::async | std::launch::deferred,
                            [&] { lower.Write(blocks, RowLines(columns, zeroPoint)); });
  const std::size_t begin = stream.str().size();
  for (auto block = blocks.TakeFromTop(); !block.empty(); block = blocks.TakeFromTop()) {
    const bool isFirst = stream.str().size() == begin;
    lines.Append(stream, block);
    if (!isFirst) continue;
    const std::size_t bytes = stream.str().size() - begin;
    stream.Reserve(begin + EstimateBytes(bytes, block.size(), rows.size()));
  }
  writing.get();
  lower.AppendTo(stream);
}

}  // namespace Vantrel
