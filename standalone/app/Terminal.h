#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace standalone {

/// The colours that may be used.
enum class ColorDepth {
  kNone,
  kPalette,  ///< The 256 colours of a terminal.
  kTrue,     ///< 8 bits a channel.
};

/// What standard output leads to, as far as it matters for a table.
struct OutputTerminal {
  /// Columns of the screen; none: no terminal, and no need to cut anything.
  std::optional<std::size_t> width;
  ColorDepth colors = ColorDepth::kNone;
};

/// The present standard output: a terminal's own width, else that of the variable COLUMNS, else 80.
OutputTerminal GetOutputTerminal();

/// The colours of a terminal, from the variables NO_COLOR, TERM and COLORTERM (null: not set).
ColorDepth ChooseColorDepth(const char* noColor, const char* term, const char* colorTerm);

/// A width as people write it: digits, at least 1; none for anything else.
std::optional<std::size_t> ReadWidth(std::string_view text);

}  // namespace standalone
