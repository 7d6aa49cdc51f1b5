#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Where a column stands, in whole pixels from the first one's left edge.
struct ColumnSpan {
  std::size_t displayIndex = 0;
  std::uint32_t id = 0;
  int left = 0;
  int width = 0;
  friend bool operator==(const ColumnSpan&, const ColumnSpan&) noexcept = default;
};

/// Where the columns of a header row stand. Edges are rounded, not widths, so that fractions never add
/// up; a column without a pixel is not among them. [main-thread]
class STANDALONE_API ColumnSpans {
 public:
  /// Reads them anew; the room of the old ones is used again.
  void Read(const qelui::controls::UI_MultiColumnTreeHeaderRow& headerRow);
  void Clear() noexcept;

  /// From the left.
  const std::vector<ColumnSpan>& GetShown() const noexcept { return shown; }
  int GetTotalWidth() const noexcept { return totalWidth; }
  /// The index in GetShown() of the column that covers `x`, or none.
  std::optional<std::size_t> FindAt(int x) const;
  /// The index in GetShown() of a column, or none when it is not shown.
  std::optional<std::size_t> FindColumn(std::size_t displayIndex) const;

 private:
  std::vector<ColumnSpan> shown;
  int totalWidth = 0;
};

}  // namespace standalone
