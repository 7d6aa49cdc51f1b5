#include <gtest/gtest.h>

#include <QScrollBar>

#include "scaling/AllocationWatch.h"
#include "window/WindowFixture.h"

/// Painting takes time for what is seen: counts instead of clocks.
namespace standalone {
namespace {

struct Cost {
  std::size_t cells = 0;
  std::uint64_t allocations = 0;
  friend bool operator==(const Cost&, const Cost&) = default;
};

class PaintCost : public WindowFixture {
 protected:
  Cost Measure(std::size_t rowCount) {
    const auto tree = MakeTree(rowCount);
    std::size_t cells = 0;
    const qelcore::UTF8String text("Harbour before dawn");
    Draw(*tree, [&](qelui::Drawbot& drawbot, Tree::Row*, std::size_t, const qelui::Rect& cell) {
      ++cells;
      Tree::DrawCellString(drawbot, cell, text, {}, cell.height / 2, 4, {}, {}, 0, 2);
    });
    const auto widget = Show(tree);
    widget->verticalScrollBar()->setValue(static_cast<int>(rowCount) / 2);
    Settle();
    QImage image(widget->viewport()->size(), QImage::Format_RGB32);
    widget->viewport()->render(&image);
    cells = 0;
    const scaling::AllocationWatch watch;
    widget->viewport()->render(&image);
    return {cells, watch.Take().count};
  }
};

TEST_F(PaintCost, AMillionRowsCostAPaintAsMuchAsAThousand) {
  const Cost few = Measure(1000);
  EXPECT_EQ(Measure(1'000'000), few);
  // Ten or eleven rows of three columns.
  EXPECT_GE(few.cells, 30U);
  EXPECT_LE(few.cells, 33U);
}

TEST_F(PaintCost, TextsThatWereDrawnBeforeAreNotShapedAgain) {
  const auto tree = MakeTree(1000);
  const auto widget = Show(tree);
  QImage image(widget->viewport()->size(), QImage::Format_RGB32);
  widget->viewport()->render(&image);
  const auto count = [&] {
    const scaling::AllocationWatch watch;
    widget->viewport()->render(&image);
    return watch.Take().count;
  };
  const std::uint64_t known = count();
  widget->verticalScrollBar()->setValue(10'000);
  Settle();
  tree->GetControl().ScrollTo(5'000);
  EXPECT_GT(count(), 2 * known);
  EXPECT_EQ(count(), known);
}

TEST_F(PaintCost, OnlyTheColumnsInViewAreDrawn) {
  const auto tree = MakeTree(1000);
  std::size_t cells = 0;
  Draw(*tree, [&](qelui::Drawbot&, Tree::Row*, std::size_t, const qelui::Rect&) { ++cells; });
  const auto headerRow = tree->GetHeaderRow();
  for (std::uint32_t id = 100; id < 200; ++id) headerRow->AppendColumn({}, id);
  const auto widget = Show(tree, Room(400, 120));
  cells = 0;
  const Picture picture(*widget);
  const auto rows = tree->GetControl().GetVisiblePositions().size();
  EXPECT_EQ(cells, rows * 4);
}

TEST_F(PaintCost, AStepOfTheRowHeightAtAMillionRowsDrawsWhatIsSeen) {
  const auto tree = MakeTree(1'000'000);
  std::size_t cells = 0;
  Draw(*tree, [&](qelui::Drawbot&, Tree::Row*, std::size_t, const qelui::Rect&) { ++cells; });
  const auto widget = Show(tree);
  tree->GetControl().ScrollTo(10'000'000);
  Settle();
  tree->SetRowHeight(47.5F);
  cells = 0;
  Settle();
  const Picture picture(*widget);
  EXPECT_LE(cells, 2 * 3 * 7U);
  EXPECT_EQ(tree->GetControl().GetVisiblePositions().front(), 500'000U);
  EXPECT_EQ(widget->verticalScrollBar()->value(), 23'750'000);
}

}  // namespace
}  // namespace standalone
