#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/ZSL/Color.h"

namespace standalone {

/// A cell as a table of texts prints it.
struct ShowableCell {
  /// Showable, UTF-8; valid until the next cell is read or kept.
  std::string_view text;
  /// What it takes on the screen.
  std::size_t columns = 0;
  /// Whether the text asks for attention.
  bool isAlert = false;
  /// Set: this colour is shown, and no text.
  std::optional<ZSL::Color> swatch;
};

/// The first cells of a table, kept from when they are measured until they are printed, so that most
/// tables are drawn once. It keeps as much as about a hundred thousand rows take (32 MB at most); cells
/// after that are not kept.
class KeptCells {
 public:
  /// Makes room for that many cells, as far as so many are kept.
  void Reserve(std::size_t cells);
  /// Adds a cell behind the others, or leaves it and all that follow when there is no room.
  void Keep(const ShowableCell& cell);

  std::size_t Count() const noexcept { return cells.size(); }
  /// The cell that was kept at that position, from 0; valid while this object is.
  ShowableCell Get(std::size_t position) const;

 private:
  static constexpr std::size_t kMostCells = std::size_t{1} << 20;
  static constexpr std::size_t kMostBytes = std::size_t{1} << 24;

  struct Cell {
    /// Where the text ends in `texts`; it begins where the one before ends.
    std::uint32_t end = 0;
    std::uint32_t columns = 0;
    ZSL::Color swatch;
    bool isSwatch = false;
    bool isAlert = false;
  };

  std::string texts;
  std::vector<Cell> cells;
  bool isFull = false;
};

}  // namespace standalone
