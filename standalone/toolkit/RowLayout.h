#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Where rows of one height stand below each other. The height may be a fraction of a pixel; tops are
/// whole pixels that depend on the row's position alone, so rows differ by a pixel and errors never add
/// up.
class STANDALONE_API RowLayout {
 public:
  /// A height below one pixel counts as one pixel.
  explicit RowLayout(float rowHeight) noexcept;

  /// As for the constructor. Tops change; positions do not.
  void SetRowHeight(float newHeight) noexcept;
  float GetRowHeight() const noexcept { return static_cast<float>(rowHeight); }

  /// Adds a row at the end; a hidden one takes no room. The row is not laid out before Update.
  void Append(bool isHidden) {
    if (isHidden) hidden.push_back(count);
    ++count;
  }
  /// Lays out the rows appended so far.
  void Update() noexcept { shownCount = count - hidden.size(); }
  void Clear() noexcept;

  /// The top of the row at a position, in pixels from the first row's top.
  std::int64_t GetTop(std::size_t position) const;
  /// The height of all rows laid out.
  std::int64_t GetHeight() const noexcept { return GetTopOfShown(shownCount); }
  /// The row that covers the height `y`, or none.
  std::optional<std::size_t> FindPositionAt(std::int64_t y) const;
  /// The positions of the rows of which at least a pixel lies in [top, bottom), in order.
  std::vector<std::size_t> GetPositionsBetween(std::int64_t top, std::int64_t bottom) const;

 private:
  std::int64_t GetTopOfShown(std::size_t shownIndex) const noexcept;
  /// The last shown row whose top is at or above `y`, counted among the shown rows.
  std::size_t FindShownAt(std::int64_t y) const noexcept;
  std::size_t GetPositionOfShown(std::size_t shownIndex) const;

  double rowHeight;
  std::size_t count = 0;
  /// The positions of the hidden rows, ascending; hardly ever any.
  std::vector<std::size_t> hidden;
  /// The rows that were laid out and take room.
  std::size_t shownCount = 0;
};

}  // namespace standalone
