#include "standalone/app/KeptCells.h"

#include <algorithm>

namespace standalone {

void KeptCells::Reserve(std::size_t count) {
  cells.reserve(std::min(count, kMostCells));
}

void KeptCells::Keep(const ShowableCell& cell) {
  isFull = isFull || cells.size() == kMostCells || cell.text.size() > kMostBytes - texts.size();
  if (isFull) return;
  texts.append(cell.text);
  cells.push_back({static_cast<std::uint32_t>(texts.size()), static_cast<std::uint32_t>(cell.columns),
                   cell.swatch.value_or(ZSL::Color()), cell.swatch.has_value(), cell.isAlert});
}

ShowableCell KeptCells::Get(std::size_t position) const {
  const Cell& cell = cells[position];
  const std::size_t start = position == 0 ? 0 : cells[position - 1].end;
  return {std::string_view(texts).substr(start, cell.end - start), cell.columns, cell.isAlert,
          cell.isSwatch ? std::optional(cell.swatch) : std::nullopt};
}

}  // namespace standalone
