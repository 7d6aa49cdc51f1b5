#include "standalone/toolkit/RowGestures.h"

#include <algorithm>
#include <utility>

#include "host/qelui/Events.h"

namespace standalone {

using qelui::ui::kModifierControl;
using qelui::ui::kModifierShift;

namespace {

bool HasShift(std::uint32_t modifiers) noexcept {
  return (modifiers & kModifierShift) != 0;
}

bool HasControl(std::uint32_t modifiers) noexcept {
  return (modifiers & kModifierControl) != 0;
}

/// Selects the rows between two, both included, and no others.
bool SelectOnly(RowSelection& selection, std::size_t one, std::size_t other) {
  RowSelection next;
  next.AddRange(std::min(one, other), std::max(one, other) + 1);
  if (next == selection) return false;
  selection = std::move(next);
  return true;
}

bool AddBetween(RowSelection& selection, std::size_t one, std::size_t other) {
  return selection.AddRange(std::min(one, other), std::max(one, other) + 1);
}

std::size_t FindTarget(RowMove move, std::size_t from, std::size_t last, std::size_t page) {
  switch (move) {
    case RowMove::kUp:
      return from - std::min<std::size_t>(from, 1);
    case RowMove::kDown:
      return std::min(from + 1, last);
    case RowMove::kPageUp:
      return from - std::min(from, page);
    case RowMove::kPageDown:
      return from + std::min(last - from, page);
    case RowMove::kFirst:
      return 0;
    case RowMove::kLast:
      return last;
  }
  return from;
}

}  // namespace

bool RowGestures::Click(RowSelection& selection, std::optional<std::size_t> position,
                        std::uint32_t modifiers) {
  if (!isMultiple) modifiers = 0;
  if (!position) {
    const bool isKeeping = HasShift(modifiers) || HasControl(modifiers);
    return !isKeeping && selection.Clear();
  }
  current = position;
  if (HasShift(modifiers)) return SelectToCurrent(selection, modifiers);
  anchor = position;
  if (!HasControl(modifiers)) return SelectOnly(selection, *position, *position);
  return selection.Contains(*position) ? selection.Remove(*position) : selection.Add(*position);
}

bool RowGestures::DragTo(RowSelection& selection, std::size_t position, std::uint32_t modifiers) {
  if (!isMultiple) return Click(selection, position, 0);
  current = position;
  // A drag that began by deselecting its first row selects no others.
  const bool isAdding = HasControl(modifiers);
  if (isAdding && anchor && !selection.Contains(*anchor)) return false;
  return SelectToCurrent(selection, modifiers);
}

bool RowGestures::ContextClick(RowSelection& selection, std::optional<std::size_t> position) {
  if (!position) return false;
  if (!selection.Contains(*position)) return Click(selection, position, 0);
  current = position;
  return false;
}

bool RowGestures::Move(RowSelection& selection, RowMove move, std::uint32_t modifiers,
                       std::size_t rowCount, std::size_t pageRows) {
  if (rowCount == 0) return false;
  if (!isMultiple) modifiers = 0;
  const std::size_t last = rowCount - 1;
  const bool isFirstMove = !current && move != RowMove::kLast;
  const std::size_t target =
      isFirstMove ? 0 : FindTarget(move, std::min(current.value_or(0), last), last, pageRows);
  if (HasShift(modifiers)) {
    if (!anchor) anchor = current;
    current = target;
    return SelectToCurrent(selection, modifiers);
  }
  current = target;
  if (HasControl(modifiers)) return false;
  anchor = target;
  return SelectOnly(selection, target, target);
}

bool RowGestures::SelectCurrent(RowSelection& selection, std::uint32_t modifiers) {
  return current && Click(selection, current, modifiers);
}

bool RowGestures::SelectAll(RowSelection& selection, std::size_t rowCount) {
  return isMultiple && selection.AddRange(0, rowCount);
}

bool RowGestures::SelectToCurrent(RowSelection& selection, std::uint32_t modifiers) {
  if (!anchor) anchor = current;
  return HasControl(modifiers) ? AddBetween(selection, *anchor, *current)
                               : SelectOnly(selection, *anchor, *current);
}

}  // namespace standalone
