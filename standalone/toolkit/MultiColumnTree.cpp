#include "host/qelui/MultiColumnTree.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/RowLayout.h"
#include "standalone/toolkit/RowStore.h"

namespace qelui::controls {

using standalone::AssertMainThread;

namespace {
/// Pixels that a header row takes from the top of the control.
constexpr std::int64_t kHeaderHeight = 20;
constexpr float kCellTextLeftInset = 6;
}  // namespace

class UI_MultiColumnTree::State {
 public:
  explicit State(float rowHeight) : layout(rowHeight) {}

  /// The height of the viewport: what the header row leaves of the control.
  std::int64_t GetViewportHeight(const Rect& bounds) const {
    const std::int64_t header = headerRow ? kHeaderHeight : 0;
    return std::max<std::int64_t>(static_cast<std::int64_t>(bounds.height) - header, 0);
  }

  /// The pixels above the viewport, within what there is to scroll now.
  std::int64_t GetScrollPosition(std::int64_t viewportHeight) const {
    const std::int64_t range = std::max<std::int64_t>(layout.GetHeight() - viewportHeight, 0);
    return std::clamp<std::int64_t>(scrollPosition, 0, range);
  }

  /// The scroll position nearest to the present one at which all of [top, bottom) is seen, its top
  /// rather than its bottom if it is taller than the viewport.
  std::int64_t FindScrollPositionShowing(std::int64_t top, std::int64_t bottom,
                                         std::int64_t viewportHeight) const {
    const std::int64_t present = GetScrollPosition(viewportHeight);
    return std::min(std::max(present, bottom - viewportHeight), top);
  }

  standalone::RowStore rows;
  standalone::RowLayout layout;
  qelcore::Ref<UI_MultiColumnTreeHeaderRow> headerRow;
  SharedDrawCellFunction drawCell;
  /// Wanted; what there is to scroll may have become less since.
  std::int64_t scrollPosition = 0;
  bool wantsKeyboardFocus = false;
  bool isSelectingMultiple = false;
};

UI_MultiColumnTree::UI_MultiColumnTree(unsigned, float rowHeight)
    : state(std::make_unique<State>(rowHeight)) {}

UI_MultiColumnTree::~UI_MultiColumnTree() = default;

void UI_MultiColumnTree::SetWantsKeyboardFocus(bool wantsFocus) {
  AssertMainThread("UI_MultiColumnTree::SetWantsKeyboardFocus");
  state->wantsKeyboardFocus = wantsFocus;
}

void UI_MultiColumnTree::SetSupportMultipleSelections(bool isSupported) {
  AssertMainThread("UI_MultiColumnTree::SetSupportMultipleSelections");
  state->isSelectingMultiple = isSupported;
}

void UI_MultiColumnTree::SetHeaderRow(const qelcore::Ref<UI_MultiColumnTreeHeaderRow>& headerRow) {
  AssertMainThread("UI_MultiColumnTree::SetHeaderRow");
  state->headerRow = headerRow;
}

qelcore::Ref<UI_MultiColumnTreeHeaderRow> UI_MultiColumnTree::GetHeaderRow() const {
  AssertMainThread("UI_MultiColumnTree::GetHeaderRow");
  return state->headerRow;
}

void UI_MultiColumnTree::SetDrawCellOfRowCallback(SharedDrawCellFunction callback) {
  AssertMainThread("UI_MultiColumnTree::SetDrawCellOfRowCallback");
  state->drawCell = std::move(callback);
}

void UI_MultiColumnTree::DrawCellOfRow(Drawbot& drawbot, Row* row, std::size_t displayIndex,
                                       const Rect& cell) const {
  AssertMainThread("UI_MultiColumnTree::DrawCellOfRow");
  // Held, in case the callback registers another one.
  const SharedDrawCellFunction drawCell = state->drawCell;
  if (drawCell && *drawCell) (*drawCell)(drawbot, row, displayIndex, cell);
}

void UI_MultiColumnTree::DrawCellString(Drawbot& drawbot, const Rect& cell,
                                        const qelcore::UTF8String& text, const ColorRGBA& color,
                                        float centre, float leftInset,
                                        const qelcore::UTF8String& fontName,
                                        std::u16string_view ellipsis, std::uint32_t, std::uint32_t) {
  AssertMainThread("UI_MultiColumnTree::DrawCellString");
  if (text.Empty()) return;
  const Rect room{cell.left + leftInset, cell.top, std::max(cell.width - leftInset, 0.0F), cell.height};
  drawbot.DrawTextLine({text, room, cell.top + centre, color, fontName, ellipsis});
}

float UI_MultiColumnTree::GetCellTextLeftInset() {
  AssertMainThread("UI_MultiColumnTree::GetCellTextLeftInset");
  return kCellTextLeftInset;
}

std::size_t UI_MultiColumnTree::CountRows() const {
  AssertMainThread("UI_MultiColumnTree::CountRows");
  return state->rows.Count();
}

UI_MultiColumnTree::Row* UI_MultiColumnTree::GetRow(std::size_t position) const {
  AssertMainThread("UI_MultiColumnTree::GetRow");
  return state->rows.At(position);
}

std::size_t UI_MultiColumnTree::GetRowIndex(const Row* row) const {
  AssertMainThread("UI_MultiColumnTree::GetRowIndex");
  return state->rows.IndexOf(row);
}

std::vector<UI_MultiColumnTree::Row*> UI_MultiColumnTree::GetVisibleRows() const {
  AssertMainThread("UI_MultiColumnTree::GetVisibleRows");
  const std::int64_t height = state->GetViewportHeight(UI_GetBounds());
  const std::int64_t top = state->GetScrollPosition(height);
  std::vector<Row*> visible;
  for (const std::size_t position : state->layout.GetPositionsBetween(top, top + height)) {
    visible.push_back(state->rows.At(position));
  }
  return visible;
}

void UI_MultiColumnTree::RemoveAllRows(bool, bool) {
  AssertMainThread("UI_MultiColumnTree::RemoveAllRows");
  state->rows.Clear();
  state->layout.Clear();
  state->scrollPosition = 0;
}

UI_MultiColumnTree::Row* UI_MultiColumnTree::CreateAndAppendRow(Row*, bool isVisible,
                                                                bool isDeferringLayout) {
  AssertMainThread("UI_MultiColumnTree::CreateAndAppendRow");
  state->layout.Append(!isVisible);
  Row* const row = state->rows.Append();
  if (!isDeferringLayout) LayoutAfterAppendRow();
  return row;
}

void UI_MultiColumnTree::LayoutAfterAppendRow() {
  AssertMainThread("UI_MultiColumnTree::LayoutAfterAppendRow");
  state->layout.Update();
}

void UI_MultiColumnTree::ScrollRowIntoView(Row* row, bool isAligningToTop, bool, bool) {
  AssertMainThread("UI_MultiColumnTree::ScrollRowIntoView");
  const std::size_t position = state->rows.IndexOf(row);
  const std::int64_t top = state->layout.GetTop(position);
  const std::int64_t bottom = state->layout.GetTop(position + 1);
  const std::int64_t height = state->GetViewportHeight(UI_GetBounds());
  state->scrollPosition = isAligningToTop ? top : state->FindScrollPositionShowing(top, bottom, height);
  state->scrollPosition = state->GetScrollPosition(height);
}

}  // namespace qelui::controls
