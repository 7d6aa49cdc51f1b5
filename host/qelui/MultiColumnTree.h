#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "host/HostAPI.h"
#include "host/qelcore/Reference.h"
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

  /// `style` is the toolkit's style mask (0: plain). `rowHeight` is the height of a row in pixels.
  UI_MultiColumnTree(unsigned style, float rowHeight);
  ~UI_MultiColumnTree() override;

  void SetWantsKeyboardFocus(bool wantsFocus);
  void SetSupportMultipleSelections(bool isSupported);

  /// Attaches a header row, replacing the one before; may be empty.
  void SetHeaderRow(const qelcore::Ref<UI_MultiColumnTreeHeaderRow>& headerRow);
  qelcore::Ref<UI_MultiColumnTreeHeaderRow> GetHeaderRow() const;

  std::size_t CountRows() const;
  /// The row at a position, or null. Constant time.
  Row* GetRow(std::size_t position) const;
  /// The position of a row of this tree. Constant time. Throws: qel_exception for null, for a row of
  /// another tree, and for one that was removed.
  std::size_t GetRowIndex(const Row* row) const;
  /// The rows that the viewport shows, whole or in part, from the top.
  std::vector<Row*> GetVisibleRows() const;

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

 private:
  class State;
  std::unique_ptr<State> state;
};

}  // namespace qelui::controls
