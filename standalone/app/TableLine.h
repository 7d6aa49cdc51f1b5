#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "host/ZSL/Color.h"
#include "standalone/app/Terminal.h"

namespace standalone {

/// How a text stands out on a terminal.
enum class TextStyle { kPlain, kBold, kRed };

/// Builds lines for a terminal, from left to right. Blanks are written when something follows them, so
/// that no line ends in one.
class TableLine {
 public:
  void AddBlanks(std::size_t count) { pendingBlanks += count; }
  void AddText(std::string_view text, TextStyle style = TextStyle::kPlain);
  /// Blanks on a coloured background, in no more colours than `depth` (not kNone) has.
  void AddSwatch(const ZSL::Color& color, std::size_t columns, ColorDepth depth);

  /// Ends the line and returns it with its line break; valid until something is added again.
  std::string_view Finish();

 private:
  /// Writes the blanks in front of what comes now, and sees that there is room for it.
  void Begin(std::size_t more);
  void Write(std::string_view piece) { size += piece.copy(line.data() + size, piece.size()); }

  /// Longer than the text in it, so that pieces are only copied.
  std::string line;
  std::size_t size = 0;
  std::size_t pendingBlanks = 0;
};

/// The number of the terminal's colour, in the cube (16 to 231) or among the greys (232 to 255), that
/// is nearest to `color`.
unsigned FindPaletteColor(const ZSL::Color& color);

}  // namespace standalone
