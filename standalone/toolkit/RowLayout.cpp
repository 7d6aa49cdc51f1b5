#include "standalone/toolkit/RowLayout.h"

#include <algorithm>
#include <cmath>

namespace standalone {

namespace {

constexpr float kLeastHeight = 1;

/// Not a number counts as the least, too.
float Limit(float rowHeight) noexcept {
  return rowHeight >= kLeastHeight ? rowHeight : kLeastHeight;
}

}  // namespace

RowLayout::RowLayout(float rowHeight) noexcept : rowHeight(Limit(rowHeight)) {}

void RowLayout::SetRowHeight(float newHeight) noexcept {
  rowHeight = Limit(newHeight);
}

void RowLayout::Clear() noexcept {
  count = 0;
  hidden.clear();
  shownCount = 0;
}

std::int64_t RowLayout::GetTop(std::size_t position) const {
  const auto hiddenBefore = std::ranges::lower_bound(hidden, position) - hidden.begin();
  return GetTopOfShown(position - static_cast<std::size_t>(hiddenBefore));
}

std::optional<std::size_t> RowLayout::FindPositionAt(std::int64_t y) const {
  if (y < 0 || y >= GetHeight()) return std::nullopt;
  return GetPositionOfShown(FindShownAt(y));
}

std::vector<std::size_t> RowLayout::GetPositionsBetween(std::int64_t top, std::int64_t bottom) const {
  std::vector<std::size_t> positions;
  if (top >= bottom) return positions;
  for (std::size_t shown = FindShownAt(top); shown < shownCount; ++shown) {
    if (GetTopOfShown(shown) >= bottom) break;
    positions.push_back(GetPositionOfShown(shown));
  }
  return positions;
}

std::int64_t RowLayout::GetTopOfShown(std::size_t shownIndex) const noexcept {
  return static_cast<std::int64_t>(std::floor(static_cast<double>(shownIndex) * rowHeight + 0.5));
}

std::size_t RowLayout::FindShownAt(std::int64_t y) const noexcept {
  if (y <= 0) return 0;
  // Within one row of the answer; tops are rounded to whole pixels.
  auto shown = static_cast<std::size_t>(static_cast<double>(y) / rowHeight) + 1;
  while (shown > 0 && GetTopOfShown(shown) > y) --shown;
  return shown;
}

std::size_t RowLayout::GetPositionOfShown(std::size_t shownIndex) const {
  // How many hidden rows stand before the shown row: those with at most `shownIndex` shown ones before.
  std::size_t before = 0;
  std::size_t end = hidden.size();
  while (before < end) {
    const std::size_t middle = before + (end - before) / 2;
    if (hidden[middle] - middle <= shownIndex) {
      before = middle + 1;
    } else {
      end = middle;
    }
  }
  return shownIndex + before;
}

}  // namespace standalone
