#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelui/Node.h"
#include "host/qelui/Resources.h"

namespace qelui::controls {

class UI_MultiColumnTree;

/// The header of a multi-column tree: which columns there are, in which order, and how wide.
///
/// A new header row has one column, the tree's hierarchy column, with the identifier
/// kHierarchyColumnID at display index 0. It can't be removed, and stays in its place unless users may
/// drag the first column too. A change of the columns has the header row drawn anew, not the tree: what
/// shows the tree watches both.
/// All operations are [main-thread].
class HOST_API UI_MultiColumnTreeHeaderRow : public ui::UI_SubView {
 public:
  static constexpr std::uint32_t kHierarchyColumnID = 0;

  /// `owner` is the tree that will show this row; not owned, must outlive it.
  explicit UI_MultiColumnTreeHeaderRow(UI_MultiColumnTree* owner);
  ~UI_MultiColumnTreeHeaderRow() override;

  std::size_t GetCountOfColumns() const;
  /// The identifier of the column at a display index. Throws: qel_exception beyond the last column.
  std::uint32_t GetColumnAt(std::size_t displayIndex) const;
  /// The display index of a column, or -1 when the row has no such column.
  std::int32_t GetIndexOfColumn(std::uint32_t id) const;
  /// The text of a column; empty when the row has no such column.
  qelcore::UTF8String GetColumnNameUTF8(std::uint32_t id) const;
  /// The width of a column in pixels; 0 when the row has no such column.
  float GetColumnWidth(std::uint32_t id) const;

  /// Appends a column at the right end with the default width of 100 pixels. Throws: qel_exception
  /// when the row already has a column of that identifier.
  void AppendColumn(const qelcore::UTF8String& text, std::uint32_t id);
  /// The next three ignore an identifier that the row does not have.
  void RemoveColumn(std::uint32_t id);
  void SetColumnName(std::uint32_t id, const qelcore::UTF8String& text);
  void SetColumnWidth(std::uint32_t id, float width);

  /// Whether users may drag columns, and whether the first one takes part.
  void SetAllowColumnMovingByUser(bool isAllowed, bool includingFirstColumn);
  /// What a drag of a column by the user does: the column at the display index `from` goes to `to`, the
  /// ones between make room. False, and nothing moves, when there is no such place or the user may not.
  bool MoveColumnByUser(std::size_t from, std::size_t to);
  /// What a drag of a column's right border by the user does: the column at a display index becomes so
  /// many pixels wide, at least kNarrowestColumn. Nothing happens beyond the last column, and to the
  /// hierarchy column.
  void ResizeColumnByUser(std::size_t displayIndex, float width);
  static constexpr float kNarrowestColumn = 8;

  /// How many pixels of the columns lie left of the view; for the host, which scrolls sideways.
  void SetScrollOffset(float offset);
  float GetScrollOffset() const;

  /// Whether a sort indicator is wanted. The toolkit draws none: tables here never sort by a column.
  void ShowSortIndicator(bool isShown);
  bool IsSortIndicatorShown() const;

  /// Draws background, texts and dividers of the columns into the view's bounds.
  void UI_Draw(Drawbot& drawbot) override;

  /// The user begins (true) or ends to drag a column: the pointer shows it.
  virtual void SetColumnMoveCursor(bool isMoving);
  bool HasColumnMoveCursor() const;

  /// How the header row is built; the base: the plain one.
  virtual utility::StyleResource GetStyleResource() const;

 private:
  class State;
  std::unique_ptr<State> state;
};

}  // namespace qelui::controls
