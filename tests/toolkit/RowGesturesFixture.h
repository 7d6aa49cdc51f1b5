#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>

#include "standalone/toolkit/RowGestures.h"

inline constexpr std::uint32_t kPlain = 0;
inline constexpr std::optional<std::size_t> kBelow;
inline constexpr std::size_t kRowCount = 30;
inline constexpr std::size_t kPageRows = 7;

/// A table of thirty rows, seven of which make a page.
class RowGesturesOfMany : public testing::Test {
 protected:
  RowGesturesOfMany() { gestures.SetSupportsMultiple(true); }

  bool Click(std::optional<std::size_t> position, std::uint32_t modifiers = kPlain) {
    return gestures.Click(selection, position, modifiers);
  }
  bool DragTo(std::size_t position, std::uint32_t modifiers = kPlain) {
    return gestures.DragTo(selection, position, modifiers);
  }
  bool Move(standalone::RowMove move, std::uint32_t modifiers = kPlain) {
    return gestures.Move(selection, move, modifiers, kRowCount, kPageRows);
  }
  bool Space(std::uint32_t modifiers = kPlain) { return gestures.SelectCurrent(selection, modifiers); }
  auto GetSelected() const { return selection.GetPositions(); }

  standalone::RowSelection selection;
  standalone::RowGestures gestures;
};

class RowGesturesOfOne : public RowGesturesOfMany {
 protected:
  RowGesturesOfOne() { gestures.SetSupportsMultiple(false); }
};
