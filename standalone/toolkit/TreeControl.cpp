#include "standalone/toolkit/TreeControl.h"

#include <algorithm>
#include <iterator>

#include "standalone/runtime/Guard.h"
#include "standalone/runtime/Runtime.h"

namespace qelui::controls {

using standalone::AssertMainThread;
using standalone::CallGuarded;
using Control = UI_MultiColumnTree::Control;

namespace {
constexpr bool kIsAligningToTop = true;
constexpr bool kIsShowingCurrent = true;
}  // namespace

UI_MultiColumnTree::Control::Control(UI_MultiColumnTree& tree, float rowHeight)
    : tree(tree), layout(rowHeight) {}

void Control::SetViewportHeight(std::optional<std::int64_t> height) {
  AssertMainThread("UI_MultiColumnTree::Control::SetViewportHeight");
  if (height == viewportHeight) return;
  // The visibility callback may let go of the table.
  const qelcore::Ref<UI_MultiColumnTree> held(&tree);
  const std::vector<std::size_t> before = GetVisiblePositions();
  viewportHeight = height;
  tree.UI_Invalidate();
  NotifyVisibilityChanges(before);
}

std::int64_t Control::GetViewportHeight() const {
  if (viewportHeight) return std::max<std::int64_t>(*viewportHeight, 0);
  const float header = headerRow ? headerRow->GetStyleResource().height : 0;
  return static_cast<std::int64_t>(std::max(tree.UI_GetBounds().height - header, 0.0F));
}

std::int64_t Control::GetScrollRange() const {
  return std::max<std::int64_t>(layout.GetHeight() - GetViewportHeight(), 0);
}

std::int64_t Control::GetScrollPosition() const {
  return std::clamp<std::int64_t>(scrollPosition, 0, GetScrollRange());
}

void Control::ScrollTo(std::int64_t position) {
  AssertMainThread("UI_MultiColumnTree::Control::ScrollTo");
  const qelcore::Ref<UI_MultiColumnTree> held(&tree);
  const std::vector<std::size_t> before = GetVisiblePositions();
  if (!SetScrollPosition(position)) return;
  tree.UI_Invalidate();
  NotifyVisibilityChanges(before);
}

std::optional<std::size_t> Control::FindPositionAt(std::int64_t y) const {
  return layout.FindPositionAt(y);
}

std::vector<std::size_t> Control::GetVisiblePositions() const {
  const std::int64_t top = GetScrollPosition();
  return layout.GetPositionsBetween(top, top + GetViewportHeight());
}

bool Control::IsVisible(std::size_t position) const {
  const std::int64_t viewportTop = GetScrollPosition();
  const std::int64_t top = layout.GetTop(position);
  const std::int64_t bottom = layout.GetTop(position + 1);
  const bool isShown = top < bottom && bottom <= layout.GetHeight();
  return isShown && bottom > viewportTop && top < viewportTop + GetViewportHeight();
}

std::vector<UI_MultiColumnTree::Row*> Control::GetSelectedRows() const {
  std::vector<Row*> selected;
  selected.reserve(selection.Count());
  selection.ForEach([&](std::size_t position) { selected.push_back(rows.At(position)); });
  return selected;
}

void Control::Click(std::optional<std::size_t> position, std::uint32_t modifiers) {
  AssertMainThread("UI_MultiColumnTree::Control::Click");
  DoGesture(position.has_value(), [&] { return gestures.Click(selection, position, modifiers); });
}

void Control::DragTo(std::size_t position, std::uint32_t modifiers) {
  AssertMainThread("UI_MultiColumnTree::Control::DragTo");
  DoGesture(kIsShowingCurrent, [&] { return gestures.DragTo(selection, position, modifiers); });
}

void Control::ContextClick(std::optional<std::size_t> position) {
  AssertMainThread("UI_MultiColumnTree::Control::ContextClick");
  DoGesture(position.has_value(), [&] { return gestures.ContextClick(selection, position); });
}

void Control::MoveCurrent(standalone::RowMove move, std::uint32_t modifiers) {
  AssertMainThread("UI_MultiColumnTree::Control::MoveCurrent");
  DoGesture(kIsShowingCurrent,
            [&] { return gestures.Move(selection, move, modifiers, rows.Count(), CountPageRows()); });
}

void Control::SelectCurrent(std::uint32_t modifiers) {
  AssertMainThread("UI_MultiColumnTree::Control::SelectCurrent");
  DoGesture(kIsShowingCurrent, [&] { return gestures.SelectCurrent(selection, modifiers); });
}

void Control::SelectAll() {
  AssertMainThread("UI_MultiColumnTree::Control::SelectAll");
  DoGesture(!kIsShowingCurrent, [&] { return gestures.SelectAll(selection, rows.Count()); });
}

std::size_t Control::CountPageRows() const {
  const double rowsInView = static_cast<double>(GetViewportHeight()) / layout.GetRowHeight();
  return std::max<std::size_t>(static_cast<std::size_t>(rowsInView), 1);
}

bool Control::ScrollToShow(std::size_t position, bool isAligningToTop) {
  const std::int64_t top = layout.GetTop(position);
  if (isAligningToTop) return SetScrollPosition(top);
  // The nearest place at which the whole row is seen; its top, if it is taller than the viewport.
  const std::int64_t bottom = layout.GetTop(position + 1);
  return SetScrollPosition(std::min(std::max(GetScrollPosition(), bottom - GetViewportHeight()), top));
}

bool Control::SetScrollPosition(std::int64_t position) {
  const std::int64_t before = GetScrollPosition();
  scrollPosition = std::clamp<std::int64_t>(position, 0, GetScrollRange());
  return scrollPosition != before;
}

void Control::SetRowHeight(float height) {
  const float before = layout.GetRowHeight();
  const std::optional<std::size_t> first = layout.FindPositionAt(GetScrollPosition());
  layout.SetRowHeight(height);
  if (layout.GetRowHeight() == before) return;
  if (first) ScrollToShow(*first, kIsAligningToTop);
  tree.UI_Invalidate();
}

template <typename Change>
void Control::DoGesture(bool isShowingCurrent, Change&& change) {
  // A callback may let go of the table.
  const qelcore::Ref<UI_MultiColumnTree> held(&tree);
  const std::vector<std::size_t> visibleBefore = GetVisiblePositions();
  const std::optional<std::size_t> currentBefore = gestures.GetCurrent();
  const bool isSelectionChanged = change();
  const std::optional<std::size_t> current = gestures.GetCurrent();
  const bool hasScrolled = isShowingCurrent && current && ScrollToShow(*current, !kIsAligningToTop);
  if (isSelectionChanged || hasScrolled || current != currentBefore) tree.UI_Invalidate();
  if (hasScrolled) NotifyVisibilityChanges(visibleBefore);
  if (isSelectionChanged) NotifySelectionChanged();
}

void Control::NotifySelectionChanged() const {
  // Held, in case the callback registers another one.
  const SharedRowsSelectionChangedFunction callback = rowsSelectionChanged;
  if (!callback || !*callback) return;
  CallGuarded("a table's selection callback", [&] { (*callback)(GetSelectedRows()); });
}

void Control::NotifyVisibilityChanges(const std::vector<std::size_t>& before) const {
  const SharedRowVisibilityChangedFunction callback = rowVisibilityChanged;
  if (!callback || !*callback) return;
  const std::vector<std::size_t> now = GetVisiblePositions();
  std::vector<std::size_t> changed;
  std::ranges::set_symmetric_difference(before, now, std::back_inserter(changed));
  for (const std::size_t position : changed) {
    // The callback may remove rows.
    Row* const row = rows.At(position);
    if (row == nullptr) return;
    CallGuarded("a table's visibility callback", [&] { (*callback)(row); });
  }
}

}  // namespace qelui::controls
