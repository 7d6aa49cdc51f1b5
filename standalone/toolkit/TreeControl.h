#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "host/qelui/MultiColumnTree.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/toolkit/RowGestures.h"
#include "standalone/toolkit/RowLayout.h"
#include "standalone/toolkit/RowSelection.h"
#include "standalone/toolkit/RowStore.h"

namespace qelui::controls {

/// The host's side of a table: its rows and their layout, the place of the viewport over them, the
/// selection, and what the user's gestures do to both. Complete without a window; a window that shows
/// the table reads from here, and calls the gestures.
///
/// A gesture that changes the selection runs the selection callback once; one that moves the current
/// row scrolls it into view. Heights and tops are whole pixels from the first row's top. [main-thread]
class STANDALONE_API UI_MultiColumnTree::Control {
 public:
  Control(UI_MultiColumnTree& tree, float rowHeight);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  // What a window shows.

  /// The height of the window's room for rows; none: what the header row leaves of the control's
  /// bounds.
  void SetViewportHeight(std::optional<std::int64_t> height);
  std::int64_t GetViewportHeight() const;
  /// The height of all rows.
  std::int64_t GetContentHeight() const noexcept { return layout.GetHeight(); }
  /// The pixels above the viewport, at most GetContentHeight() − GetViewportHeight(), at least 0.
  std::int64_t GetScrollPosition() const;
  /// The user scrolled.
  void ScrollTo(std::int64_t position);
  std::int64_t GetTop(std::size_t position) const { return layout.GetTop(position); }
  /// The row at a height, or none below the last one and above the first.
  std::optional<std::size_t> FindPositionAt(std::int64_t y) const;
  /// The rows that the viewport shows, whole or in part.
  std::vector<std::size_t> GetVisiblePositions() const;
  bool IsSelected(std::size_t position) const noexcept { return selection.Contains(position); }
  std::size_t CountSelected() const noexcept { return selection.Count(); }
  std::optional<std::size_t> GetCurrent() const noexcept { return gestures.GetCurrent(); }
  bool WantsKeyboardFocus() const noexcept { return wantsKeyboardFocus; }
  bool SupportsMultipleSelections() const noexcept { return isSelectingMultiple; }

  // What the user does. Modifiers are the toolkit's.

  void Click(std::optional<std::size_t> position, std::uint32_t modifiers);
  void DragTo(std::size_t position, std::uint32_t modifiers);
  void ContextClick(std::optional<std::size_t> position);
  void MoveCurrent(standalone::RowMove move, std::uint32_t modifiers);
  void SelectCurrent(std::uint32_t modifiers);
  void SelectAll();

 private:
  friend class UI_MultiColumnTree;

  std::int64_t GetScrollRange() const;
  bool IsVisible(std::size_t position) const;
  std::vector<Row*> GetSelectedRows() const;
  /// The rows that a page key passes.
  std::size_t CountPageRows() const;
  /// Scrolls so that a row is seen; true when that moved the viewport.
  bool ScrollToShow(std::size_t position, bool isAligningToTop);
  bool SetScrollPosition(std::int64_t position);
  void SetRowHeight(float height);

  /// Runs what a gesture does to the selection, shows the current row if asked, and tells of it all.
  template <typename Change>
  void DoGesture(bool isShowingCurrent, Change&& change);
  void NotifySelectionChanged() const;
  /// Tells the visibility callback which rows came into view, or left it, since `before` was visible.
  void NotifyVisibilityChanges(const std::vector<std::size_t>& before) const;

  UI_MultiColumnTree& tree;
  standalone::RowStore rows;
  standalone::RowLayout layout;
  standalone::RowSelection selection;
  standalone::RowGestures gestures;
  qelcore::Ref<UI_MultiColumnTreeHeaderRow> headerRow;
  SharedDrawCellFunction drawCell;
  SharedRowsSelectionChangedFunction rowsSelectionChanged;
  SharedRowVisibilityChangedFunction rowVisibilityChanged;
  std::optional<std::int64_t> viewportHeight;
  /// Wanted; what there is to scroll may have become less since.
  std::int64_t scrollPosition = 0;
  bool wantsKeyboardFocus = false;
  bool isSelectingMultiple = false;
};

}  // namespace qelui::controls
