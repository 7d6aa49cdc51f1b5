#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace standalone {

/// What a column would like, for FitColumnWidths.
struct WantedWidth {
  /// In columns of the screen; what its widest text takes.
  std::size_t natural = 0;
  /// Narrowed only when the others can't give more: what is short and says much, such as times.
  bool isNarrowedLast = false;
};

/// Blanks between two columns.
inline constexpr std::size_t kColumnGap = 2;
/// A column that has to be cut keeps this width at least: of less nobody can read anything.
inline constexpr std::size_t kNarrowestCut = 8;

/// The widths at which columns, kColumnGap apart, fit into `room` (none: as wide as they like). The
/// widest are narrowed first. Columns from the right that can't be fitted in have no width in the
/// result, but the first column always has one.
std::vector<std::size_t> FitColumnWidths(const std::vector<WantedWidth>& columns,
                                         std::optional<std::size_t> room);

}  // namespace standalone
