#include "standalone/window/TreeWidget.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QWheelEvent>
#include <limits>

#include "window/WindowFixture.h"

namespace standalone {
namespace {

class ShownTree : public WindowFixture {
 protected:
  void Turn(TreeWidget& widget, QPoint pixels, QPoint angle,
            Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const QPointF place(50, 50);
    QWheelEvent event(place, widget.viewport()->mapToGlobal(place), pixels, angle, Qt::NoButton,
                      modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget.viewport(), &event);
    Settle();
  }
};

TEST_F(ShownTree, TheScrollRangeIsWhatTheViewportDoesNotShow) {
  const auto tree = MakeTree(10'000, 47.5F);
  const auto widget = Show(tree, Room(400, 910));
  EXPECT_EQ(widget->viewport()->height(), 910);
  EXPECT_EQ(widget->verticalScrollBar()->maximum(), 475'000 - 910);
  EXPECT_EQ(widget->verticalScrollBar()->pageStep(), 910);
}

TEST_F(ShownTree, ATableThatFitsHasNoScrollBars) {
  const auto tree = MakeTree(3);
  const auto widget = Show(tree);
  EXPECT_FALSE(widget->verticalScrollBar()->isVisible());
  EXPECT_FALSE(widget->horizontalScrollBar()->isVisible());
}

TEST_F(ShownTree, TheControlKnowsTheRoomThatScrollBarsLeave) {
  const auto tree = MakeTree(100);
  const auto widget = Show(tree, Room(200, 200));
  ASSERT_TRUE(widget->horizontalScrollBar()->isVisible());
  EXPECT_LT(widget->viewport()->height(), 200);
  EXPECT_EQ(tree->GetControl().GetViewportHeight(), widget->viewport()->height());
  EXPECT_EQ(widget->verticalScrollBar()->maximum(), 2000 - widget->viewport()->height());
  EXPECT_EQ(widget->horizontalScrollBar()->maximum(), 300 - widget->viewport()->width());
}

TEST_F(ShownTree, TheControlFollowsTheWindowsSize) {
  const auto tree = MakeTree(100);
  const auto widget = Show(tree);
  widget->resize(Room(400, 100));
  Settle();
  EXPECT_EQ(tree->GetControl().GetViewportHeight(), 100);
  EXPECT_EQ(tree->GetVisibleRows().size(), 5U);
}

TEST_F(ShownTree, TheScrollBarMovesTheTable) {
  const auto tree = MakeTree(100);
  const auto widget = Show(tree);
  widget->verticalScrollBar()->setValue(333);
  EXPECT_EQ(tree->GetControl().GetScrollPosition(), 333);
  EXPECT_EQ(widget->GetCellArea(17, 0).top(), 17 * 20 - 333);
}

TEST_F(ShownTree, ATableThatScrollsMovesTheScrollBar) {
  const auto tree = MakeTree(100);
  const auto widget = Show(tree);
  tree->ScrollRowIntoView(tree->GetRow(50), true, true, true);
  Settle();
  EXPECT_EQ(widget->verticalScrollBar()->value(), 1000);
  tree->ScrollRowIntoView(tree->GetRow(99), true, true, true);
  Settle();
  EXPECT_EQ(widget->verticalScrollBar()->value(), widget->verticalScrollBar()->maximum());
}

TEST_F(ShownTree, AnotherRowHeightKeepsTheFirstVisibleRow) {
  const auto tree = MakeTree(1000);
  const auto widget = Show(tree);
  widget->verticalScrollBar()->setValue(2000);
  for (const float height : {47.5F, 70.0F, 25.0F}) {
    tree->SetRowHeight(height);
    Settle();
    EXPECT_EQ(widget->GetCellArea(100, 0).top(), 0) << height;
    EXPECT_EQ(widget->verticalScrollBar()->value(), static_cast<int>(100 * height));
  }
}

TEST_F(ShownTree, RowsThatGoTakeTheScrollRangeWithThem) {
  const auto tree = MakeTree(1000);
  const auto widget = Show(tree);
  widget->verticalScrollBar()->setValue(5000);
  tree->RemoveAllRows(false, true);
  AppendRows(*tree, 15);
  Settle();
  EXPECT_EQ(widget->verticalScrollBar()->maximum(), 100);
  EXPECT_EQ(widget->verticalScrollBar()->value(),
            static_cast<int>(tree->GetControl().GetScrollPosition()));
}

TEST_F(ShownTree, ScrollingSidewaysMovesBodyAndHeaderTogether) {
  const auto tree = MakeTree(3);
  const auto widget = Show(tree, Room(200, 200));
  widget->horizontalScrollBar()->setValue(70);
  EXPECT_EQ(widget->GetCellArea(0, 1).left(), 30);
  EXPECT_EQ(widget->GetHeader().sectionViewportPosition(2), 30);
  EXPECT_EQ(tree->GetHeaderRow()->GetScrollOffset(), 70);
}

TEST_F(ShownTree, ColumnsRunFromLeftToRightInEveryLanguage) {
  QApplication::setLayoutDirection(Qt::RightToLeft);
  const auto tree = MakeTree(3);
  const auto widget = Show(tree, Room(200, 200));
  EXPECT_EQ(widget->GetHeader().sectionViewportPosition(1), 0);
  EXPECT_EQ(widget->GetCellArea(0, 0).left(), 0);
  QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(ShownTree, TheBodyFollowsTheHeaderRow) {
  const auto tree = MakeTree(3);
  const auto widget = Show(tree);
  const auto headerRow = tree->GetHeaderRow();
  headerRow->SetColumnWidth(1, 33);
  headerRow->RemoveColumn(2);
  headerRow->AppendColumn(qelcore::UTF8String("New"), 9);
  Settle();
  EXPECT_EQ(widget->GetColumns().GetShown(),
            (std::vector<ColumnSpan>{{1, 1, 0, 33}, {2, 3, 33, 100}, {3, 9, 133, 100}}));
  EXPECT_EQ(widget->GetHeader().count(), 4);
  EXPECT_EQ(widget->GetHeader().sectionSize(1), 33);
  EXPECT_EQ(widget->GetHeader().model()->headerData(3, Qt::Horizontal), QVariant("New"));
}

TEST_F(ShownTree, AnotherHeaderRowTakesThePlaceOfTheFirst) {
  const auto tree = MakeTree(3);
  const auto widget = Show(tree);
  const auto headerRow = qelcore::Ref(new HeaderRow(tree.Get()));
  headerRow->AppendColumn({}, 5);
  tree->SetHeaderRow(headerRow);
  tree->UI_Invalidate();
  Settle();
  EXPECT_EQ(widget->GetHeader().count(), 2);
  headerRow->AppendColumn({}, 6);
  Settle();
  EXPECT_EQ(widget->GetHeader().count(), 3);
}

TEST_F(ShownTree, AStepOfTheWheelIsThreeRows) {
  const auto tree = MakeTree(100);
  const auto widget = Show(tree);
  Turn(*widget, {}, {0, -120});
  EXPECT_EQ(tree->GetControl().GetScrollPosition(), QApplication::wheelScrollLines() * 20);
  Turn(*widget, {}, {0, 120});
  EXPECT_EQ(tree->GetControl().GetScrollPosition(), 0);
}

TEST_F(ShownTree, FinePartsOfAWheelStepAddUp) {
  const auto tree = MakeTree(100);
  const auto widget = Show(tree);
  for (int i = 0; i < 120; ++i) Turn(*widget, {}, {0, -1});
  EXPECT_EQ(tree->GetControl().GetScrollPosition(), QApplication::wheelScrollLines() * 20);
}

TEST_F(ShownTree, ATouchpadScrollsByThePixel) {
  const auto tree = MakeTree(100);
  const auto widget = Show(tree, Room(200, 200));
  Turn(*widget, {-5, -7}, {-40, -56});
  EXPECT_EQ(tree->GetControl().GetScrollPosition(), 7);
  EXPECT_EQ(widget->horizontalScrollBar()->value(), 5);
}

TEST_F(ShownTree, TheWheelWithShiftScrollsSideways) {
  const auto tree = MakeTree(100);
  const auto widget = Show(tree, Room(200, 200));
  Turn(*widget, {}, {0, -120}, Qt::ShiftModifier);
  EXPECT_EQ(tree->GetControl().GetScrollPosition(), 0);
  EXPECT_EQ(widget->horizontalScrollBar()->value(), QApplication::wheelScrollLines() * 20);
}

TEST_F(ShownTree, TheWheelGoesOnFromWhereTheTableHasJustScrolled) {
  const auto tree = MakeTree(100);
  const auto widget = Show(tree);
  tree->ScrollRowIntoView(tree->GetRow(50), true, true, true);
  Turn(*widget, {}, {0, -120});
  EXPECT_EQ(tree->GetControl().GetScrollPosition(), 1000 + QApplication::wheelScrollLines() * 20);
}

TEST_F(ShownTree, AMoveToTheSidesLeavesAloneWhereTheTableHasJustScrolled) {
  const auto tree = MakeTree(100);
  const auto widget = Show(tree, Room(200, 200));
  tree->ScrollRowIntoView(tree->GetRow(50), true, true, true);
  widget->horizontalScrollBar()->setValue(30);
  Settle();
  EXPECT_EQ(tree->GetControl().GetScrollPosition(), 1000);
  EXPECT_EQ(widget->verticalScrollBar()->value(), 1000);
}

TEST_F(ShownTree, RowsBeyondWhatAScrollBarCountsAreReachedByTheTable) {
  const auto tree = MakeTree(1'000'000, 5000);
  const auto widget = Show(tree);
  tree->ScrollRowIntoView(tree->GetRow(900'000), true, true, true);
  Settle();
  EXPECT_EQ(tree->GetControl().GetScrollPosition(), 4'500'000'000);
  EXPECT_EQ(widget->verticalScrollBar()->value(), std::numeric_limits<int>::max());
  EXPECT_EQ(widget->GetCellArea(900'000, 0).top(), 0);
}

TEST_F(ShownTree, NoScrollBarStaysForTheRoomOfTheOther) {
  const auto tree = MakeTree(10);
  const auto widget = Show(tree, Room(280, 180));
  ASSERT_TRUE(widget->verticalScrollBar()->isVisible());
  ASSERT_TRUE(widget->horizontalScrollBar()->isVisible());
  widget->resize(Room(300, 200));
  Settle();
  EXPECT_FALSE(widget->verticalScrollBar()->isVisible());
  EXPECT_FALSE(widget->horizontalScrollBar()->isVisible());
  EXPECT_EQ(tree->GetControl().GetViewportHeight(), 200);
}

TEST_F(ShownTree, AWidgetThatLostItsTableShowsNothing) {
  auto tree = MakeTree(100);
  const auto widget = Show(tree);
  tree.Reset();
  Settle();
  EXPECT_FALSE(widget->GetTree());
  EXPECT_TRUE(widget->GetColumns().GetShown().empty());
  EXPECT_EQ(widget->verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(widget->GetHeader().count(), 0);
  const Picture picture(*widget);
  EXPECT_TRUE(picture.IsAll(QRect(10, 40, 100, 100), ToQColor(GetThemeColors().tabBackground)));
}

TEST_F(ShownTree, EventsReachAWidgetThatLostItsTable) {
  auto tree = MakeTree(100);
  const auto widget = Show(tree);
  tree.Reset();
  Turn(*widget, {}, {0, -120});
  QKeyEvent key(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  QApplication::sendEvent(widget.get(), &key);
  EXPECT_FALSE(key.isAccepted());
  widget->FitColumn(1);
  widget->OpenColumnMenu();
  widget->resize(100, 100);
  Settle();
}

TEST_F(ShownTree, ATableOutlivesItsWidget) {
  const auto tree = MakeTree(100);
  tree->UI_SetBounds({0, 0, 400, 100 + kHeaderHeight});
  auto widget = Show(tree);
  widget.reset();
  tree->ScrollRowIntoView(tree->GetRow(50), true, true, true);
  tree->GetHeaderRow()->AppendColumn({}, 9);
  Settle();
  EXPECT_EQ(tree->GetControl().GetViewportHeight(), 100);
}

TEST_F(ShownTree, ATableGoesWithTheLastReferenceWhileItIsShown) {
  auto tree = MakeTree(1);
  const auto widget = Show(tree);
  const qelcore::WeakRef<Tree> weak(tree);
  tree.Reset();
  EXPECT_FALSE(weak.Lock());
}

TEST_F(ShownTree, ATableMayGoWhileItIsPainted) {
  auto tree = MakeTree(3);
  const auto widget = Show(tree);
  Draw(*tree, [&tree](qelui::Drawbot&, Tree::Row*, std::size_t, const qelui::Rect&) { tree.Reset(); });
  const Picture picture(*widget);
  Settle();
  EXPECT_FALSE(widget->GetTree());
}

TEST_F(ShownTree, ATableThatWantsNoKeyboardFocusGetsNone) {
  const auto tree = MakeTree(3);
  tree->SetWantsKeyboardFocus(false);
  const auto widget = Show(tree);
  EXPECT_EQ(widget->focusPolicy(), Qt::NoFocus);
}

TEST_F(ShownTree, ChangesWhileTheWindowIsHiddenAreSeenWhenItIsShown) {
  const auto tree = MakeTree(3);
  const auto widget = Show(tree);
  widget->hide();
  AppendRows(*tree, 997);
  Settle();
  widget->show();
  Settle();
  EXPECT_EQ(widget->verticalScrollBar()->maximum(), 20'000 - widget->viewport()->height());
}

}  // namespace
}  // namespace standalone
