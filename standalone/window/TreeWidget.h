#pragma once

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QPoint>
#include <QRect>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

#include "host/qelcore/CountedObject.h"
#include "host/qelcore/Reference.h"
#include "host/qelui/MultiColumnTree.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/ColumnSpans.h"
#include "standalone/window/NodeWatch.h"
#include "standalone/window/NodeWidgets.h"
#include "standalone/window/TextFonts.h"
#include "standalone/window/TreeHeader.h"

namespace standalone {

/// Shows a table in a window: its header row, its rows with scroll bars, and what the user's mouse,
/// wheel and keys do to them. The table's control keeps rows, selection and scroll position; the widget
/// follows it when it changes, and hands it the user's gestures.
///
/// Holds the control weakly, and strongly while it handles an event; once the control is gone it shows
/// an empty panel. [main-thread]
class STANDALONE_API TreeWidget final : public QAbstractScrollArea {
 public:
  using Tree = qelui::controls::UI_MultiColumnTree;

  explicit TreeWidget(const qelcore::Ref<Tree>& tree, QWidget* parent = nullptr);
  ~TreeWidget() override;

  /// Empty once the control is gone.
  qelcore::Ref<Tree> GetTree() const noexcept { return weakTree.Lock(); }
  TreeHeader& GetHeader() const noexcept { return *header; }
  /// The columns as they stand now.
  const ColumnSpans& GetColumns();
  /// The cell of a row in a column of GetColumns(), in pixels of the viewport; may lie outside.
  QRect GetCellArea(std::size_t position, std::size_t column);
  /// The column that keyboard users are in, an index into GetColumns(): the one pressed last, the first
  /// one seen otherwise.
  std::size_t GetCurrentColumn();

  /// Takes over what changed in the control. Happens by itself soon after a change.
  void Follow();
  /// Makes the column at a display index as wide as its name and its visible cells.
  void FitColumn(std::size_t displayIndex);
  /// Opens the columns' menu under the current column's name.
  void OpenColumnMenu();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  /// What the last Follow saw of the rows, for telling assistive programs.
  struct Seen {
    std::size_t rowCount = 0;
    std::size_t selectedCount = 0;
    std::optional<std::size_t> current;
  };

  void FollowSoon();
  /// Does what FollowSoon has put off: scroll bars that the user's input starts from are up to date.
  void FollowNow();
  void FollowHeaderRow(const Tree& tree);
  void FollowRows(Tree& tree);
  void FollowScrollBars(const Tree& tree);
  void PlaceHeader();
  void AnnounceChanges(const Tree& tree);
  /// False for a key that means nothing here, as it stands now: it is left to the window.
  bool DoKey(Tree& tree, const QKeyEvent& event);
  bool ScrollColumns(const QKeyEvent& event);
  void DoPress(QMouseEvent& event);
  void DoDrag(Tree& tree, QPoint place, std::uint32_t modifiers);
  void ScrollWithDrag();
  void EndDrag();
  bool HasSelectionFocus() const;
  std::optional<std::size_t> FindPosition(const Tree& tree, int y) const;
  int FindNameWidth(const TreeHeader::HeaderRow& headerRow, std::size_t displayIndex);
  int FindTextWidth(const Tree& tree, std::size_t displayIndex);

  qelcore::WeakRef<Tree> weakTree;
  qelcore::WeakRef<TreeHeader::HeaderRow> weakHeaderRow;
  NodeWatch treeWatch;
  NodeWatch headerWatch;
  std::unique_ptr<NodeWidget> place;
  TextFonts fonts;
  ColumnSpans columns;
  TreeHeader* header;
  Seen seen;
  /// What the wheel turned that is less than a pixel.
  QPointF wheelRest;
  /// The row that a drag of the pointer, begun on a row, has reached.
  std::optional<std::size_t> dragged;
  /// Where the pointer is, perhaps outside.
  QPoint dragPoint;
  QBasicTimer dragScroll;
  /// The identifier of the column pressed last.
  std::optional<std::uint32_t> pressedColumn;
  bool isFollowPending = false;
  bool isFollowing = false;
};

}  // namespace standalone
