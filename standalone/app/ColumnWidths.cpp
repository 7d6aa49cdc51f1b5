#include "standalone/app/ColumnWidths.h"

#include <algorithm>
#include <limits>

namespace standalone {

namespace {

constexpr std::size_t kUncapped = std::numeric_limits<std::size_t>::max();

/// The sum of what columns take when none is wider than `cap`.
std::size_t SumCapped(const std::vector<std::size_t*>& widths, std::size_t cap = kUncapped) {
  std::size_t sum = 0;
  for (const std::size_t* const width : widths) sum += std::min(*width, cap);
  return sum;
}

/// The highest cap with which the columns fit into `room`, kNarrowestCut if there is none.
std::size_t FindCap(const std::vector<std::size_t*>& widths, std::size_t room) {
  std::size_t low = kNarrowestCut;
  std::size_t high = std::max(low, room);
  while (low < high) {
    const std::size_t middle = high - (high - low) / 2;
    if (SumCapped(widths, middle) <= room) {
      low = middle;
    } else {
      high = middle - 1;
    }
  }
  return low;
}

/// Narrows the widest columns to one width, and gives what is left to them, one each from the left.
void Narrow(const std::vector<std::size_t*>& widths, std::size_t room) {
  if (SumCapped(widths) <= room) return;
  const std::size_t cap = FindCap(widths, room);
  const std::size_t sum = SumCapped(widths, cap);
  std::size_t left = room > sum ? room - sum : 0;
  for (std::size_t* const width : widths) {
    if (*width <= cap) continue;
    *width = cap;
    if (left == 0) continue;
    ++*width;
    --left;
  }
}

std::size_t SubtractDownToZero(std::size_t from, std::size_t what) {
  return from > what ? from - what : 0;
}

/// How many columns fit in when all are as narrow as can be; one at least.
std::size_t CountFitting(const std::vector<WantedWidth>& columns, std::size_t room) {
  std::size_t end = 0;
  std::size_t count = 0;
  for (const WantedWidth& column : columns) {
    end += std::min(column.natural, kNarrowestCut) + (count == 0 ? 0 : kColumnGap);
    if (end > room && count > 0) break;
    ++count;
  }
  return count;
}

}  // namespace

std::vector<std::size_t> FitColumnWidths(const std::vector<WantedWidth>& columns,
                                         std::optional<std::size_t> room) {
  const std::size_t count = room ? CountFitting(columns, *room) : columns.size();
  std::vector<std::size_t> widths;
  for (std::size_t i = 0; i < count; ++i) widths.push_back(columns[i].natural);
  if (!room || count == 0) return widths;
  if (count == 1) return {std::min(widths[0], *room)};
  std::vector<std::size_t*> first;
  std::vector<std::size_t*> last;
  for (std::size_t i = 0; i < count; ++i) {
    (columns[i].isNarrowedLast ? last : first).push_back(&widths[i]);
  }
  const std::size_t roomOfTexts = *room - (count - 1) * kColumnGap;
  Narrow(first, SubtractDownToZero(roomOfTexts, SumCapped(last)));
  Narrow(last, SubtractDownToZero(roomOfTexts, SumCapped(first)));
  return widths;
}

}  // namespace standalone
