#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/toolkit/RowSelection.h"

namespace standalone {

/// Where a key takes the current row.
enum class RowMove : std::uint8_t { kUp, kDown, kPageUp, kPageDown, kFirst, kLast };

/// What clicks and keys do to the selection of a table, the way people know it from file lists:
///
/// - a click selects one row; with Control it toggles a row; with Shift it selects the range from the
///   anchor, the row that was clicked last without Shift; with both it adds that range;
/// - a click below the last row deselects, unless Shift or Control is held;
/// - arrow, page, Home and End keys move the current row and select it; with Shift they select the
///   range from the anchor, with both they add it; with Control they move without selecting; Space does
///   what a click on the current row does: it selects it, with Control it toggles it;
/// - a table of single selection takes every gesture as one without modifiers, and can't be selected as
///   a whole.
///
/// Modifiers are the toolkit's (kModifierShift, kModifierControl). Each operation tells whether the
/// selection is another one now. [main-thread]
class STANDALONE_API RowGestures {
 public:
  void SetSupportsMultiple(bool isSupported) noexcept { isMultiple = isSupported; }

  /// A press of the primary button on a row, or below the last one.
  bool Click(RowSelection& selection, std::optional<std::size_t> position, std::uint32_t modifiers);
  /// The pointer went on to another row with the button held: the range from the anchor; with Control
  /// it is added, unless the press had deselected the anchor.
  bool DragTo(RowSelection& selection, std::size_t position, std::uint32_t modifiers);
  /// A press of the context-menu button: selects the row unless it is selected; nothing below the last
  /// one.
  bool ContextClick(RowSelection& selection, std::optional<std::size_t> position);
  /// @param pageRows how far a page takes; at least 1
  bool Move(RowSelection& selection, RowMove move, std::uint32_t modifiers, std::size_t rowCount,
            std::size_t pageRows);
  bool SelectCurrent(RowSelection& selection, std::uint32_t modifiers);
  bool SelectAll(RowSelection& selection, std::size_t rowCount);

  /// The row that keys start from; none before the first gesture and after Reset.
  std::optional<std::size_t> GetCurrent() const noexcept { return current; }
  /// Makes a row the current one and the anchor, as a selecting program does.
  void SetCurrent(std::size_t position) noexcept { anchor = current = position; }
  /// All rows were removed.
  void Reset() noexcept { anchor = current = std::nullopt; }

 private:
  /// Selects the range from the anchor to the current row; with Control, in addition.
  bool SelectToCurrent(RowSelection& selection, std::uint32_t modifiers);

  std::optional<std::size_t> anchor;
  std::optional<std::size_t> current;
  bool isMultiple = false;
};

}  // namespace standalone
