#include "host/qelui/MultiColumnTreeHeaderRow.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "host/qelcore/Exceptions.h"
#include "host/qelui/MultiColumnTree.h"
#include "host/qelui/Theme.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/ThemeColors.h"

namespace qelui::controls {

using qelcore::config::ExceptionKind;
using qelcore::config::qel_exception;
using standalone::AssertMainThread;

namespace {

constexpr float kDefaultWidth = 100;
constexpr float kDividerWidth = 1;
constexpr std::uint32_t kPlainTextFont = 0;
constexpr std::u16string_view kToolkitEllipsis;

struct Column {
  std::uint32_t id = UI_MultiColumnTreeHeaderRow::kHierarchyColumnID;
  qelcore::UTF8String text;
  float width = kDefaultWidth;
};

void DrawColumn(Drawbot& drawbot, const qelcore::UTF8String& text, const Rect& place, float inset) {
  const standalone::ThemeColors& colors = standalone::GetThemeColors();
  UI_MultiColumnTree::DrawCellString(drawbot, place, text, colors.headerText, place.height / 2, inset,
                                     ui::GetFontName(kPlainTextFont), kToolkitEllipsis,
                                     UI_MultiColumnTree::kAlignLeft, UI_MultiColumnTree::kCutAtEnd);
  const float right = place.left + place.width;
  drawbot.FillRect({right - kDividerWidth, place.top, kDividerWidth, place.height}, colors.divider);
}

}  // namespace

class UI_MultiColumnTreeHeaderRow::State {
 public:
  /// The column of an identifier, or null.
  Column* Find(std::uint32_t id) {
    const auto column = std::ranges::find(columns, id, &Column::id);
    return column == columns.end() ? nullptr : &*column;
  }

  /// In display order.
  std::vector<Column> columns{Column()};
  bool isMovingAllowed = false;
  bool isMovingFirstColumn = false;
  bool isSortIndicatorShown = true;
  bool hasMoveCursor = false;
  float scrollOffset = 0;
};

UI_MultiColumnTreeHeaderRow::UI_MultiColumnTreeHeaderRow(UI_MultiColumnTree*)
    : state(std::make_unique<State>()) {}

UI_MultiColumnTreeHeaderRow::~UI_MultiColumnTreeHeaderRow() = default;

std::size_t UI_MultiColumnTreeHeaderRow::GetCountOfColumns() const {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::GetCountOfColumns");
  return state->columns.size();
}

std::uint32_t UI_MultiColumnTreeHeaderRow::GetColumnAt(std::size_t displayIndex) const {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::GetColumnAt");
  if (displayIndex >= state->columns.size()) {
    throw qel_exception(ExceptionKind::kGeneric,
                        "There is no column " + std::to_string(displayIndex) + " in the header", {});
  }
  return state->columns[displayIndex].id;
}

std::int32_t UI_MultiColumnTreeHeaderRow::GetIndexOfColumn(std::uint32_t id) const {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::GetIndexOfColumn");
  const Column* const column = state->Find(id);
  return column == nullptr ? -1 : static_cast<std::int32_t>(column - state->columns.data());
}

qelcore::UTF8String UI_MultiColumnTreeHeaderRow::GetColumnNameUTF8(std::uint32_t id) const {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::GetColumnNameUTF8");
  const Column* const column = state->Find(id);
  return column == nullptr ? qelcore::UTF8String() : column->text;
}

float UI_MultiColumnTreeHeaderRow::GetColumnWidth(std::uint32_t id) const {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::GetColumnWidth");
  const Column* const column = state->Find(id);
  return column == nullptr ? 0 : column->width;
}

void UI_MultiColumnTreeHeaderRow::AppendColumn(const qelcore::UTF8String& text, std::uint32_t id) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::AppendColumn");
  if (state->Find(id) != nullptr) {
    throw qel_exception(ExceptionKind::kGeneric,
                        "The header already has a column " + std::to_string(id), {});
  }
  state->columns.push_back({id, text, kDefaultWidth});
  UI_Invalidate();
}

void UI_MultiColumnTreeHeaderRow::RemoveColumn(std::uint32_t id) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::RemoveColumn");
  if (id == kHierarchyColumnID) return;
  const auto removed =
      std::erase_if(state->columns, [id](const Column& column) { return column.id == id; });
  if (removed != 0) UI_Invalidate();
}

void UI_MultiColumnTreeHeaderRow::SetColumnName(std::uint32_t id, const qelcore::UTF8String& text) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::SetColumnName");
  Column* const column = state->Find(id);
  if (column == nullptr || column->text == text) return;
  column->text = text;
  UI_Invalidate();
}

void UI_MultiColumnTreeHeaderRow::SetColumnWidth(std::uint32_t id, float width) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::SetColumnWidth");
  Column* const column = state->Find(id);
  const float newWidth = std::max(0.0F, width);
  if (column == nullptr || column->width == newWidth) return;
  column->width = newWidth;
  UI_Invalidate();
}

void UI_MultiColumnTreeHeaderRow::SetAllowColumnMovingByUser(bool isAllowed,
                                                             bool includingFirstColumn) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::SetAllowColumnMovingByUser");
  state->isMovingAllowed = isAllowed;
  state->isMovingFirstColumn = includingFirstColumn;
}

bool UI_MultiColumnTreeHeaderRow::MoveColumnByUser(std::size_t from, std::size_t to) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::MoveColumnByUser");
  const std::size_t firstMovable = state->isMovingFirstColumn ? 0 : 1;
  const std::size_t end = state->columns.size();
  if (!state->isMovingAllowed || std::min(from, to) < firstMovable || std::max(from, to) >= end) {
    return false;
  }
  const auto column = state->columns.begin() + static_cast<std::ptrdiff_t>(from);
  const auto place = state->columns.begin() + static_cast<std::ptrdiff_t>(to);
  if (from < to) {
    std::rotate(column, column + 1, place + 1);
  } else {
    std::rotate(place, column, column + 1);
  }
  UI_Invalidate();
  return true;
}

void UI_MultiColumnTreeHeaderRow::ResizeColumnByUser(std::size_t displayIndex, float width) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::ResizeColumnByUser");
  if (displayIndex >= state->columns.size()) return;
  const std::uint32_t id = state->columns[displayIndex].id;
  if (id != kHierarchyColumnID) SetColumnWidth(id, std::max(kNarrowestColumn, width));
}

void UI_MultiColumnTreeHeaderRow::SetScrollOffset(float offset) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::SetScrollOffset");
  const float newOffset = std::max(0.0F, offset);
  if (newOffset == state->scrollOffset) return;
  state->scrollOffset = newOffset;
  UI_Invalidate();
}

float UI_MultiColumnTreeHeaderRow::GetScrollOffset() const {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::GetScrollOffset");
  return state->scrollOffset;
}

void UI_MultiColumnTreeHeaderRow::ShowSortIndicator(bool isShown) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::ShowSortIndicator");
  if (isShown == state->isSortIndicatorShown) return;
  state->isSortIndicatorShown = isShown;
  UI_Invalidate();
}

bool UI_MultiColumnTreeHeaderRow::IsSortIndicatorShown() const {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::IsSortIndicatorShown");
  return state->isSortIndicatorShown;
}

void UI_MultiColumnTreeHeaderRow::UI_Draw(Drawbot& drawbot) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::UI_Draw");
  const Rect bounds = UI_GetBounds();
  const float inset = GetStyleResource().textInset;
  drawbot.FillRect({0, 0, bounds.width, bounds.height}, standalone::GetThemeColors().headerBackground);
  float left = -state->scrollOffset;
  for (const Column& column : state->columns) {
    const Rect place{left, 0, column.width, bounds.height};
    left += column.width;
    const bool isInView = column.width > 0 && left > 0 && place.left < bounds.width;
    if (isInView) DrawColumn(drawbot, column.text, place, inset);
  }
}

void UI_MultiColumnTreeHeaderRow::SetColumnMoveCursor(bool isMoving) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::SetColumnMoveCursor");
  if (isMoving == state->hasMoveCursor) return;
  state->hasMoveCursor = isMoving;
  UI_Invalidate();
}

bool UI_MultiColumnTreeHeaderRow::HasColumnMoveCursor() const {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::HasColumnMoveCursor");
  return state->hasMoveCursor;
}

utility::StyleResource UI_MultiColumnTreeHeaderRow::GetStyleResource() const {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::GetStyleResource");
  return utility::GetResourceManager().GetResource(utility::kHeaderRowStyle, utility::kPlainHeaderRow);
}

}  // namespace qelui::controls
