#include "host/qelui/MultiColumnTree.h"

#include <algorithm>
#include <utility>

#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/TreeControl.h"

namespace qelui::controls {

using standalone::AssertMainThread;

namespace {
constexpr float kCellTextLeftInset = 6;
}  // namespace

UI_MultiColumnTree::UI_MultiColumnTree(unsigned, float rowHeight)
    : control(std::make_unique<Control>(*this, rowHeight)) {}

UI_MultiColumnTree::~UI_MultiColumnTree() = default;

void UI_MultiColumnTree::SetWantsKeyboardFocus(bool wantsFocus) {
  AssertMainThread("UI_MultiColumnTree::SetWantsKeyboardFocus");
  control->wantsKeyboardFocus = wantsFocus;
}

void UI_MultiColumnTree::SetSupportMultipleSelections(bool isSupported) {
  AssertMainThread("UI_MultiColumnTree::SetSupportMultipleSelections");
  control->isSelectingMultiple = isSupported;
  control->gestures.SetSupportsMultiple(isSupported);
}

void UI_MultiColumnTree::SetHeaderRow(const qelcore::Ref<UI_MultiColumnTreeHeaderRow>& headerRow) {
  AssertMainThread("UI_MultiColumnTree::SetHeaderRow");
  control->headerRow = headerRow;
  UI_Invalidate();
}

const qelcore::Ref<UI_MultiColumnTreeHeaderRow>& UI_MultiColumnTree::GetHeaderRow() const {
  AssertMainThread("UI_MultiColumnTree::GetHeaderRow");
  return control->headerRow;
}

void UI_MultiColumnTree::SetDrawCellOfRowCallback(SharedDrawCellFunction callback) {
  AssertMainThread("UI_MultiColumnTree::SetDrawCellOfRowCallback");
  control->drawCell = std::move(callback);
  UI_Invalidate();
}

void UI_MultiColumnTree::DrawCellOfRow(Drawbot& drawbot, Row* row, std::size_t displayIndex,
                                       const Rect& cell) const {
  AssertMainThread("UI_MultiColumnTree::DrawCellOfRow");
  // Held, in case the callback registers another one.
  const SharedDrawCellFunction drawCell = control->drawCell;
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

void UI_MultiColumnTree::SetRowsSelectionChangedCallback(SharedRowsSelectionChangedFunction callback) {
  AssertMainThread("UI_MultiColumnTree::SetRowsSelectionChangedCallback");
  control->rowsSelectionChanged = std::move(callback);
}

void UI_MultiColumnTree::SetRowVisibilityChangedCallback(SharedRowVisibilityChangedFunction callback) {
  AssertMainThread("UI_MultiColumnTree::SetRowVisibilityChangedCallback");
  control->rowVisibilityChanged = std::move(callback);
}

std::size_t UI_MultiColumnTree::CountRows() const {
  AssertMainThread("UI_MultiColumnTree::CountRows");
  return control->rows.Count();
}

UI_MultiColumnTree::Row* UI_MultiColumnTree::GetRow(std::size_t position) const {
  AssertMainThread("UI_MultiColumnTree::GetRow");
  return control->rows.At(position);
}

std::size_t UI_MultiColumnTree::GetRowIndex(const Row* row) const {
  AssertMainThread("UI_MultiColumnTree::GetRowIndex");
  return control->rows.IndexOf(row);
}

std::vector<UI_MultiColumnTree::Row*> UI_MultiColumnTree::GetVisibleRows() const {
  AssertMainThread("UI_MultiColumnTree::GetVisibleRows");
  std::vector<Row*> visible;
  for (const std::size_t position : control->GetVisiblePositions()) {
    visible.push_back(control->rows.At(position));
  }
  return visible;
}

bool UI_MultiColumnTree::IsRowVisible(const Row* row) const {
  AssertMainThread("UI_MultiColumnTree::IsRowVisible");
  return control->IsVisible(control->rows.IndexOf(row));
}

std::vector<UI_MultiColumnTree::Row*> UI_MultiColumnTree::GetSelectedRows() const {
  AssertMainThread("UI_MultiColumnTree::GetSelectedRows");
  return control->GetSelectedRows();
}

void UI_MultiColumnTree::SelectRow(Row* row, bool isExtending) {
  AssertMainThread("UI_MultiColumnTree::SelectRow");
  const std::size_t position = control->rows.IndexOf(row);
  if (!isExtending || !control->isSelectingMultiple) control->selection.Clear();
  control->selection.Add(position);
  control->gestures.SetCurrent(position);
  UI_Invalidate();
}

void UI_MultiColumnTree::DeselectAllRows(bool isNotifying) {
  AssertMainThread("UI_MultiColumnTree::DeselectAllRows");
  if (!control->selection.Clear()) return;
  UI_Invalidate();
  if (isNotifying) control->NotifySelectionChanged();
}

void UI_MultiColumnTree::SetRowHeight(float height) {
  AssertMainThread("UI_MultiColumnTree::SetRowHeight");
  control->SetRowHeight(height);
}

float UI_MultiColumnTree::GetRowHeight() const {
  AssertMainThread("UI_MultiColumnTree::GetRowHeight");
  return control->layout.GetRowHeight();
}

void UI_MultiColumnTree::RemoveAllRows(bool isNotifying, bool isRedrawing) {
  AssertMainThread("UI_MultiColumnTree::RemoveAllRows");
  const bool wasSelected = control->selection.Clear();
  control->gestures.Reset();
  control->rows.Clear();
  control->layout.Clear();
  control->scrollPosition = 0;
  if (isRedrawing) UI_Invalidate();
  if (wasSelected && isNotifying) control->NotifySelectionChanged();
}

UI_MultiColumnTree::Row* UI_MultiColumnTree::CreateAndAppendRow(Row*, bool isVisible,
                                                                bool isDeferringLayout) {
  AssertMainThread("UI_MultiColumnTree::CreateAndAppendRow");
  control->layout.Append(!isVisible);
  Row* const row = control->rows.Append();
  if (!isDeferringLayout) LayoutAfterAppendRow();
  return row;
}

void UI_MultiColumnTree::LayoutAfterAppendRow() {
  AssertMainThread("UI_MultiColumnTree::LayoutAfterAppendRow");
  control->layout.Update();
  UI_Invalidate();
}

void UI_MultiColumnTree::ScrollRowIntoView(Row* row, bool isAligningToTop, bool, bool isRedrawing) {
  AssertMainThread("UI_MultiColumnTree::ScrollRowIntoView");
  const bool hasScrolled = control->ScrollToShow(control->rows.IndexOf(row), isAligningToTop);
  if (hasScrolled && isRedrawing) UI_Invalidate();
}

}  // namespace qelui::controls
