#include "standalone/window/ColumnSpans.h"

#include <algorithm>
#include <cmath>

namespace standalone {

namespace {
/// Pixels. What a header view can show, and what keeps the sum of very many columns an int.
constexpr double kWidestColumn = 1'000'000;
constexpr double kWidestTable = 1'000'000'000;
}  // namespace

void ColumnSpans::Clear() noexcept {
  shown.clear();
  totalWidth = 0;
}

void ColumnSpans::Read(const qelui::controls::UI_MultiColumnTreeHeaderRow& headerRow) {
  Clear();
  double edge = 0;
  for (std::size_t i = 0; i < headerRow.GetCountOfColumns(); ++i) {
    const std::uint32_t id = headerRow.GetColumnAt(i);
    const double width = headerRow.GetColumnWidth(id);
    edge = std::min(edge + std::clamp(width, 0.0, kWidestColumn), kWidestTable);
    const int right = static_cast<int>(std::floor(edge + 0.5));
    if (right > totalWidth) shown.push_back({i, id, totalWidth, right - totalWidth});
    totalWidth = right;
  }
}

std::optional<std::size_t> ColumnSpans::FindAt(int x) const {
  if (x < 0 || x >= totalWidth) return std::nullopt;
  const auto behind = std::ranges::upper_bound(shown, x, {}, &ColumnSpan::left);
  return static_cast<std::size_t>(behind - shown.begin()) - 1;
}

std::optional<std::size_t> ColumnSpans::FindColumn(std::size_t displayIndex) const {
  const auto found = std::ranges::find(shown, displayIndex, &ColumnSpan::displayIndex);
  if (found == shown.end()) return std::nullopt;
  return static_cast<std::size_t>(found - shown.begin());
}

}  // namespace standalone
