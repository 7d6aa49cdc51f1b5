#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <vector>

#include "host/qelui/Events.h"
#include "standalone/toolkit/RowGestures.h"

namespace {

using qelui::ui::kModifierControl;
using qelui::ui::kModifierShift;
using standalone::RowGestures;
using standalone::RowMove;
using standalone::RowSelection;

/// The rules of selecting, said once more with a plain set. Positions are signed; -1 is none.
class Model {
 public:
  explicit Model(bool isMultiple) : isMultiple(isMultiple) {}

  void Click(int position, bool hasShift, bool hasControl) {
    const bool shift = hasShift && isMultiple;
    const bool control = hasControl && isMultiple;
    if (position < 0) {
      if (!shift && !control) selected.clear();
      return;
    }
    current = position;
    if (shift) {
      SelectRange(control);
    } else if (control) {
      anchor = position;
      if (selected.erase(position) == 0) selected.insert(position);
    } else {
      anchor = position;
      selected = {position};
    }
  }

  void DragTo(int position, bool hasControl) {
    if (!isMultiple) return Click(position, false, false);
    current = position;
    if (hasControl && anchor >= 0 && !selected.contains(anchor)) return;
    SelectRange(hasControl);
  }

  void MoveTo(int target, bool hasShift, bool hasControl) {
    const bool shift = hasShift && isMultiple;
    const bool control = hasControl && isMultiple;
    if (shift && anchor < 0) anchor = current;
    current = target;
    if (shift) {
      SelectRange(control);
    } else if (!control) {
      anchor = target;
      selected = {target};
    }
  }

  std::set<int> selected;
  int anchor = -1;
  int current = -1;

 private:
  void SelectRange(bool isAdding) {
    if (anchor < 0) anchor = current;
    if (!isAdding) selected.clear();
    for (int row = std::min(anchor, current); row <= std::max(anchor, current); ++row) {
      selected.insert(row);
    }
  }

  bool isMultiple;
};

class RowGesturesAndRules : public testing::TestWithParam<unsigned> {
 protected:
  RowGesturesAndRules() { gestures.SetSupportsMultiple(isMultiple); }

  bool Click() {
    const int position = random() % 8 == 0 ? -1 : MakeRow();
    model.Click(position, HasShift(), HasControl());
    if (position < 0) return gestures.Click(selection, std::nullopt, modifiers);
    return gestures.Click(selection, static_cast<std::size_t>(position), modifiers);
  }

  bool Drag() {
    const int position = MakeRow();
    model.DragTo(position, HasControl());
    return gestures.DragTo(selection, static_cast<std::size_t>(position), modifiers);
  }

  bool Move() {
    const int from = model.current;
    const int step = random() % 2 == 0 ? 1 : kPage;
    const bool isDown = random() % 2 == 0;
    const int target = from < 0 ? 0 : std::clamp(isDown ? from + step : from - step, 0, rowCount - 1);
    model.MoveTo(target, HasShift(), HasControl());
    RowMove move = isDown ? RowMove::kDown : RowMove::kUp;
    if (step == kPage) move = isDown ? RowMove::kPageDown : RowMove::kPageUp;
    return gestures.Move(selection, move, modifiers, static_cast<std::size_t>(rowCount), kPage);
  }

  bool MoveToEnd() {
    const bool isLast = random() % 2 == 0;
    model.MoveTo(isLast ? rowCount - 1 : 0, HasShift(), HasControl());
    return gestures.Move(selection, isLast ? RowMove::kLast : RowMove::kFirst, modifiers,
                         static_cast<std::size_t>(rowCount), kPage);
  }

  bool SelectCurrent() {
    if (model.current >= 0) model.Click(model.current, HasShift(), HasControl());
    return gestures.SelectCurrent(selection, modifiers);
  }

  bool ContextClick() {
    const int position = MakeRow();
    if (model.selected.contains(position)) {
      model.current = position;
    } else {
      model.Click(position, false, false);
    }
    return gestures.ContextClick(selection, static_cast<std::size_t>(position));
  }

  bool SelectAll() {
    for (int row = 0; row < rowCount && isMultiple; ++row) model.selected.insert(row);
    return gestures.SelectAll(selection, static_cast<std::size_t>(rowCount));
  }

  bool DoStep() {
    modifiers = random() % 8;
    switch (random() % 16) {
      case 0:
        return SelectAll();
      case 1:
        return ContextClick();
      case 2:
        return MoveToEnd();
      case 3:
      case 4:
        return SelectCurrent();
      case 5:
      case 6:
      case 7:
        return Drag();
      case 8:
      case 9:
      case 10:
      case 11:
        return Move();
      default:
        return Click();
    }
  }

  static constexpr int kPage = 9;
  bool HasShift() const { return (modifiers & kModifierShift) != 0; }
  bool HasControl() const { return (modifiers & kModifierControl) != 0; }
  int MakeRow() { return static_cast<int>(random() % static_cast<unsigned>(rowCount)); }

  std::mt19937 random{GetParam()};
  bool isMultiple = GetParam() % 4 != 0;
  int rowCount = 1 + static_cast<int>(random() % 150);
  std::uint32_t modifiers = 0;
  RowSelection selection;
  RowGestures gestures;
  Model model{isMultiple};
};

TEST_P(RowGesturesAndRules, Agree) {
  for (int step = 0; step < 1500; ++step) {
    const std::set<int> before = model.selected;
    const bool hasChanged = DoStep();
    ASSERT_EQ(hasChanged, model.selected != before) << "step " << step;
    ASSERT_EQ(selection.GetPositions(),
              std::vector<std::size_t>(model.selected.begin(), model.selected.end()))
        << "step " << step;
    ASSERT_EQ(gestures.GetCurrent().has_value(), model.current >= 0) << "step " << step;
    if (model.current >= 0) {
      ASSERT_EQ(*gestures.GetCurrent(), static_cast<std::size_t>(model.current)) << "step " << step;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RowGesturesAndRules, testing::Range(0U, 16U));

}  // namespace
