#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "host/HostAPI.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelui/Drawbot.h"
#include "host/qelui/Geometry.h"
#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "host/qelui/Node.h"

namespace qelui::controls {

/// One row of a tree. Rows carry no data; a row is known by its address, which is valid until the
/// rows are removed. Borrowed from the tree.
class UI_MultiColumnTreeRow;

/// A table of rows under a header row. All operations are [main-thread].
class HOST_API UI_MultiColumnTree : public ui::UI_SubView {
 public:
  using Row = UI_MultiColumnTreeRow;

  /// Draws the cell of a row in the column at a display index; the rectangle is the cell's, in pixels
  /// of the tree.
  using DrawCellFunction =
      std::function<void(Drawbot& drawbot, Row* row, std::size_t displayIndex, const Rect& cell)>;
  using SharedDrawCellFunction = std::shared_ptr<const DrawCellFunction>;

  /// Called with the selected rows, from the top.
  using RowsSelectionChangedFunction = std::function<void(const std::vector<Row*>& selectedRows)>;
  using SharedRowsSelectionChangedFunction = std::shared_ptr<const RowsSelectionChangedFunction>;
  /// Called with a row that came into view or left it; may be null.
  using RowVisibilityChangedFunction = std::function<void(Row* row)>;
  using SharedRowVisibilityChangedFunction = std::shared_ptr<const RowVisibilityChangedFunction>;

  /// How DrawCellString places a text.
  static constexpr std::uint32_t kAlignLeft = 0;
  static constexpr std::uint32_t kCutAtEnd = 2;

  /// `style` is the toolkit's style mask (0: plain). `rowHeight` is the height of a row in pixels.
  UI_MultiColumnTree(unsigned style, float rowHeight);
  ~UI_MultiColumnTree() override;

  void SetWantsKeyboardFocus(bool wantsFocus);
  void SetSupportMultipleSelections(bool isSupported);

  /// Attaches a header row, replacing the one before; may be empty.
  void SetHeaderRow(const qelcore::Ref<UI_MultiColumnTreeHeaderRow>& headerRow);
  /// Valid until another one is attached or the tree is gone: each cell that is drawn asks for it.
  const qelcore::Ref<UI_MultiColumnTreeHeaderRow>& GetHeaderRow() const;

  /// Registers who draws cells, in place of the one before; null: nobody.
  void SetDrawCellOfRowCallback(SharedDrawCellFunction callback);
  /// How the host has a cell drawn: calls the callback, if there is one, and lets pass what it throws.
  void DrawCellOfRow(Drawbot& drawbot, Row* row, std::size_t displayIndex, const Rect& cell) const;

  /// Draws a text into a cell: left-aligned behind the inset and cut at the cell's right edge. An empty
  /// text draws nothing.
  /// @param centre pixels from the cell's top to the middle of the line
  /// @param leftInset pixels
  /// @param ellipsis stands where the text is cut; empty: the toolkit's own
  /// @param alignment kAlignLeft, the only one there is
  /// @param overflow kCutAtEnd, the only one there is
  static void DrawCellString(Drawbot& drawbot, const Rect& cell, const qelcore::UTF8String& text,
                             const ColorRGBA& color, float centre, float leftInset,
                             const qelcore::UTF8String& fontName, std::u16string_view ellipsis,
                             std::uint32_t alignment, std::uint32_t overflow);
  /// What the toolkit leaves free before the text of a cell, in pixels.
  static float GetCellTextLeftInset();

  /// Registers who hears that the user selected other rows, or that they were deselected with
  /// notification; in place of the one before, null: nobody. What it throws goes to the host's log.
  void SetRowsSelectionChangedCallback(SharedRowsSelectionChangedFunction callback);
  /// Registers who hears that scrolling showed or hid a row. As above.
  void SetRowVisibilityChangedCallback(SharedRowVisibilityChangedFunction callback);

  std::size_t CountRows() const;
  /// The row at a position, or null. Constant time.
  Row* GetRow(std::size_t position) const;
  /// The position of a row of this tree. Constant time. Throws: qel_exception for null, for a row of
  /// another tree, and for one that was removed.
  std::size_t GetRowIndex(const Row* row) const;
  /// The rows that the viewport shows, whole or in part, from the top.
  std::vector<Row*> GetVisibleRows() const;
  /// Whether the viewport shows a row, whole or in part. Throws: as GetRowIndex.
  bool IsRowVisible(const Row* row) const;

  /// The selected rows, from the top.
  std::vector<Row*> GetSelectedRows() const;
  /// Selects a row. Runs no callback, so that a program that selects does not hear itself. Throws: as
  /// GetRowIndex.
  /// @param isExtending true: the rows selected already stay so, if the table allows several
  void SelectRow(Row* row, bool isExtending);
  /// Deselects every row.
  /// @param isNotifying whether the selection callback runs, before this returns, if rows were selected
  void DeselectAllRows(bool isNotifying);

  /// The height of every row, in pixels; may be a fraction. The first visible row stays at the top.
  void SetRowHeight(float height);
  float GetRowHeight() const;

  /// Removes all rows and clears the selection.
  /// @param isNotifying whether the selection callback runs, with no rows left, if rows were selected
  /// @param isRedrawing whether the view is drawn anew
  void RemoveAllRows(bool isNotifying, bool isRedrawing);
  /// Appends a row. Cheap: nothing is laid out before LayoutAfterAppendRow.
  /// @param parent null: a top-level row (the only kind this control has)
  /// @param isVisible whether the row takes room
  /// @param isDeferringLayout true: the caller calls LayoutAfterAppendRow after the last row
  Row* CreateAndAppendRow(Row* parent, bool isVisible, bool isDeferringLayout);
  /// Lays the appended rows out, once.
  void LayoutAfterAppendRow();

  /// Scrolls so that `row` is seen. With all three flags its top is at the viewport's top, as far as
  /// the scroll range goes. Throws: as GetRowIndex.
  /// @param isAligningToTop false: scroll only as far as needed
  /// @param isImmediate false: the move may be animated
  /// @param isRedrawing whether the view is drawn anew
  void ScrollRowIntoView(Row* row, bool isAligningToTop, bool isImmediate, bool isRedrawing);

  /// The host's side of the table: what a window needs to show it. Opaque to modules.
  class Control;
  Control& GetControl() const noexcept { return *control; }

 private:
  std::unique_ptr<Control> control;
};

}  // namespace qelui::controls
