#include "host/qelui/MultiColumnTreeHeaderRow.h"

#include <algorithm>
#include <string>
#include <vector>

#include "host/qelcore/Exceptions.h"
#include "standalone/runtime/Runtime.h"

namespace qelui::controls {

using qelcore::config::ExceptionKind;
using qelcore::config::qel_exception;
using standalone::AssertMainThread;

namespace {

constexpr float kDefaultWidth = 100;

struct Column {
  std::uint32_t id = UI_MultiColumnTreeHeaderRow::kHierarchyColumnID;
  qelcore::UTF8String text;
  float width = kDefaultWidth;
};

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
}

void UI_MultiColumnTreeHeaderRow::RemoveColumn(std::uint32_t id) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::RemoveColumn");
  if (id == kHierarchyColumnID) return;
  std::erase_if(state->columns, [id](const Column& column) { return column.id == id; });
}

void UI_MultiColumnTreeHeaderRow::SetColumnName(std::uint32_t id, const qelcore::UTF8String& text) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::SetColumnName");
  if (Column* const column = state->Find(id)) column->text = text;
}

void UI_MultiColumnTreeHeaderRow::SetColumnWidth(std::uint32_t id, float width) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::SetColumnWidth");
  if (Column* const column = state->Find(id)) column->width = std::max(width, 0.0F);
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
  return true;
}

void UI_MultiColumnTreeHeaderRow::ShowSortIndicator(bool isShown) {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::ShowSortIndicator");
  state->isSortIndicatorShown = isShown;
}

bool UI_MultiColumnTreeHeaderRow::IsSortIndicatorShown() const {
  AssertMainThread("UI_MultiColumnTreeHeaderRow::IsSortIndicatorShown");
  return state->isSortIndicatorShown;
}

}  // namespace qelui::controls
