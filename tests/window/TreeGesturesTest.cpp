#include <gtest/gtest.h>

#include <QClipboard>
#include <QScrollBar>
#include <QTest>
#include <stdexcept>

#include "window/WindowFixture.h"

/// What the user's mouse and keys do to a shown table.
namespace standalone {
namespace {

class Gestures : public WindowFixture {
 protected:
  void Click(std::size_t position, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::mouseClick(widget->viewport(), Qt::LeftButton, modifiers, FindCell(*widget, position));
  }
  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(widget.get(), static_cast<Qt::Key>(key), modifiers);
  }
  /// False: the key is left to the window.
  bool IsTaken(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(widget.get(), &event);
    return event.isAccepted();
  }
  Positions GetRows() const { return GetSelected(*tree); }
  std::optional<std::size_t> GetCurrent() const { return tree->GetControl().GetCurrent(); }

  qelcore::Ref<Tree> tree = MakeTree(100);
  std::unique_ptr<TreeWidget> widget = Show(tree);
};

TEST_F(Gestures, AClickSelectsARow) {
  Click(2);
  Click(4);
  EXPECT_EQ(GetRows(), Positions{4});
  EXPECT_EQ(GetCurrent(), 4U);
}

TEST_F(Gestures, AClickWithControlAddsAndTakesAway) {
  Click(2);
  Click(4, Qt::ControlModifier);
  EXPECT_EQ(GetRows(), (Positions{2, 4}));
  Click(2, Qt::ControlModifier);
  EXPECT_EQ(GetRows(), Positions{4});
}

TEST_F(Gestures, AClickWithShiftSelectsARange) {
  Click(2);
  Click(5, Qt::ShiftModifier);
  EXPECT_EQ(GetRows(), (Positions{2, 3, 4, 5}));
}

TEST_F(Gestures, AClickBelowTheLastRowDeselects) {
  tree->RemoveAllRows(false, true);
  AppendRows(*tree, 3);
  Settle();
  Click(1);
  QTest::mouseClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 150));
  EXPECT_EQ(GetRows(), Positions{});
}

TEST_F(Gestures, ADragSelectsTheRowsThatItPasses) {
  QTest::mousePress(widget->viewport(), Qt::LeftButton, Qt::NoModifier, FindCell(*widget, 2));
  QTest::mouseMove(widget->viewport(), FindCell(*widget, 5));
  EXPECT_EQ(GetRows(), (Positions{2, 3, 4, 5}));
  QTest::mouseMove(widget->viewport(), FindCell(*widget, 1));
  EXPECT_EQ(GetRows(), (Positions{1, 2}));
  QTest::mouseRelease(widget->viewport(), Qt::LeftButton, Qt::NoModifier, FindCell(*widget, 1));
  QTest::mouseMove(widget->viewport(), FindCell(*widget, 7));
  EXPECT_EQ(GetRows(), (Positions{1, 2}));
}

TEST_F(Gestures, ADragBeyondTheEdgeScrolls) {
  QTest::mousePress(widget->viewport(), Qt::LeftButton, Qt::NoModifier, FindCell(*widget, 2));
  QTest::mouseMove(widget->viewport(), QPoint(50, widget->viewport()->height() + 15));
  EXPECT_TRUE(QTest::qWaitFor([&] { return tree->GetControl().GetScrollPosition() > 200; }));
  EXPECT_GT(GetRows().size(), 15U);
  QTest::mouseMove(widget->viewport(), QPoint(50, -15));
  EXPECT_TRUE(QTest::qWaitFor([&] { return tree->GetControl().GetScrollPosition() == 0; }));
  EXPECT_EQ(GetRows(), (Positions{0, 1, 2}));
  QTest::mouseRelease(widget->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(50, -15));
}

TEST_F(Gestures, ADragEndsWhenItsWindowIsNoLongerTheActiveOne) {
  for (const QEvent::Type type : {QEvent::WindowDeactivate, QEvent::Hide}) {
    QTest::mousePress(widget->viewport(), Qt::LeftButton, Qt::NoModifier, FindCell(*widget, 2));
    QTest::mouseMove(widget->viewport(), FindCell(*widget, 3));
    QEvent event(type);
    QApplication::sendEvent(widget.get(), &event);
    QTest::mouseMove(widget->viewport(), FindCell(*widget, 6));
    EXPECT_EQ(GetRows(), (Positions{2, 3}));
    QTest::mouseRelease(widget->viewport(), Qt::LeftButton, Qt::NoModifier, FindCell(*widget, 6));
  }
}

TEST_F(Gestures, ADragGoesOnWithNewRows) {
  QTest::mousePress(widget->viewport(), Qt::LeftButton, Qt::NoModifier, FindCell(*widget, 5));
  tree->RemoveAllRows(true, true);
  AppendRows(*tree, 3);
  QTest::mouseMove(widget->viewport(), FindCell(*widget, 1));
  EXPECT_EQ(GetRows(), Positions{1});
  QTest::mouseMove(widget->viewport(), QPoint(50, 150));
  EXPECT_EQ(GetRows(), (Positions{1, 2}));
  QTest::mouseRelease(widget->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 150));
}

TEST_F(Gestures, ADragThatBeganBelowTheRowsSelectsNothing) {
  tree->RemoveAllRows(false, true);
  AppendRows(*tree, 3);
  Settle();
  QTest::mousePress(widget->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 150));
  QTest::mouseMove(widget->viewport(), FindCell(*widget, 1));
  EXPECT_EQ(GetRows(), Positions{});
  QTest::mouseRelease(widget->viewport(), Qt::LeftButton, Qt::NoModifier, FindCell(*widget, 1));
}

TEST_F(Gestures, TheContextButtonSelectsARowThatIsNotSelected) {
  Click(2);
  Click(4, Qt::ControlModifier);
  QTest::mouseClick(widget->viewport(), Qt::RightButton, Qt::NoModifier, FindCell(*widget, 4));
  EXPECT_EQ(GetRows(), (Positions{2, 4}));
  QTest::mouseClick(widget->viewport(), Qt::RightButton, Qt::NoModifier, FindCell(*widget, 6));
  EXPECT_EQ(GetRows(), Positions{6});
}

TEST_F(Gestures, ADoubleClickIsTwoClicks) {
  int callCount = 0;
  tree->SetRowsSelectionChangedCallback(std::make_shared<const Tree::RowsSelectionChangedFunction>(
      [&](const std::vector<Tree::Row*>&) { ++callCount; }));
  QTest::mouseDClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier, FindCell(*widget, 3));
  EXPECT_EQ(GetRows(), Positions{3});
  EXPECT_EQ(callCount, 1);
}

TEST_F(Gestures, ArrowKeysMoveTheSelection) {
  Click(2);
  Press(Qt::Key_Down);
  EXPECT_EQ(GetRows(), Positions{3});
  Press(Qt::Key_Up);
  Press(Qt::Key_Up);
  EXPECT_EQ(GetRows(), Positions{1});
}

TEST_F(Gestures, PageKeysMoveByWhatIsSeen) {
  Click(0);
  Press(Qt::Key_PageDown);
  EXPECT_EQ(GetRows(), Positions{10});
  Press(Qt::Key_PageUp);
  EXPECT_EQ(GetRows(), Positions{0});
}

TEST_F(Gestures, EndAndHomeGoToTheEndsAndShowThem) {
  Click(2);
  Press(Qt::Key_End);
  EXPECT_EQ(GetRows(), Positions{99});
  EXPECT_EQ(widget->verticalScrollBar()->value(), widget->verticalScrollBar()->maximum());
  Press(Qt::Key_Home);
  EXPECT_EQ(GetRows(), Positions{0});
  EXPECT_EQ(widget->verticalScrollBar()->value(), 0);
}

TEST_F(Gestures, KeysWithShiftSelectARange) {
  Click(2);
  Press(Qt::Key_Down, Qt::ShiftModifier);
  Press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(GetRows(), (Positions{2, 3, 4}));
  Press(Qt::Key_Home, Qt::ShiftModifier);
  EXPECT_EQ(GetRows(), (Positions{0, 1, 2}));
}

TEST_F(Gestures, KeysWithControlMoveWithoutSelectingAndSpaceSelects) {
  Click(2);
  Press(Qt::Key_Down, Qt::ControlModifier);
  Press(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(GetRows(), Positions{2});
  EXPECT_EQ(GetCurrent(), 4U);
  Press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(GetRows(), (Positions{2, 4}));
  Press(Qt::Key_Space);
  EXPECT_EQ(GetRows().back(), 4U);
}

TEST_F(Gestures, ControlASelectsAll) {
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(tree->GetControl().CountSelected(), 100U);
}

TEST_F(Gestures, ArrowsToTheSidesScrollTheColumns) {
  widget->resize(Room(200, 200));
  Settle();
  Press(Qt::Key_Right);
  const int step = widget->horizontalScrollBar()->value();
  EXPECT_GT(step, 0);
  Press(Qt::Key_Left);
  EXPECT_EQ(widget->horizontalScrollBar()->value(), 0);
}

TEST_F(Gestures, OtherKeysAreLeftToTheWindow) {
  for (const int key : {Qt::Key_F5, Qt::Key_J, Qt::Key_K, Qt::Key_L, Qt::Key_Return, Qt::Key_Escape}) {
    EXPECT_FALSE(IsTaken(key)) << key;
  }
  EXPECT_FALSE(IsTaken(Qt::Key_Down, Qt::AltModifier));
  EXPECT_FALSE(IsTaken(Qt::Key_Home, Qt::MetaModifier));
  EXPECT_TRUE(IsTaken(Qt::Key_Down, Qt::KeypadModifier));
}

TEST_F(Gestures, ArrowsToTheSidesAreLeftToTheWindowUnlessTheyScroll) {
  EXPECT_FALSE(IsTaken(Qt::Key_Left));
  EXPECT_FALSE(IsTaken(Qt::Key_Right));
  widget->resize(Room(200, 200));
  Settle();
  EXPECT_TRUE(IsTaken(Qt::Key_Left));
  EXPECT_TRUE(IsTaken(Qt::Key_Right));
  EXPECT_FALSE(IsTaken(Qt::Key_Right, Qt::ShiftModifier));
}

TEST_F(Gestures, AnEmptyTableLeavesKeysToTheWindow) {
  tree->RemoveAllRows(false, true);
  for (const int key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_Space}) {
    EXPECT_FALSE(IsTaken(key)) << key;
  }
}

TEST_F(Gestures, ControlCCopiesTheSelectedRows) {
  QApplication::clipboard()->setText("before");
  EXPECT_FALSE(IsTaken(Qt::Key_C, Qt::ControlModifier));
  EXPECT_EQ(QApplication::clipboard()->text(), QString("before"));
  Click(2);
  Click(4, Qt::ControlModifier);
  EXPECT_TRUE(IsTaken(Qt::Key_C, Qt::ControlModifier));
  EXPECT_EQ(QApplication::clipboard()->text(), QString("A\tB\tC\n2 1\t2 2\t2 3\n4 1\t4 2\t4 3\n"));
}

TEST_F(Gestures, ACallbackThatEndsTheWindowIsSurvived) {
  tree->SetRowsSelectionChangedCallback(std::make_shared<const Tree::RowsSelectionChangedFunction>(
      [&](const std::vector<Tree::Row*>&) { widget.reset(); }));
  QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier);
  QApplication::sendEvent(widget.get(), &key);
  EXPECT_EQ(widget, nullptr);
}

TEST_F(Gestures, ACallbackThatFailsIsLogged) {
  tree->SetRowsSelectionChangedCallback(std::make_shared<const Tree::RowsSelectionChangedFunction>(
      [](const std::vector<Tree::Row*>&) { throw std::runtime_error("no player"); }));
  Click(2);
  EXPECT_EQ(GetRows(), Positions{2});
  EXPECT_EQ(host.TakeFailures().size(), 1U);
}

TEST_F(Gestures, AClickAfterSidewaysScrollingHitsTheSameRow) {
  widget->resize(Room(200, 200));
  Settle();
  widget->horizontalScrollBar()->setValue(50);
  widget->verticalScrollBar()->setValue(110);
  Click(8);
  EXPECT_EQ(GetRows(), Positions{8});
}

}  // namespace
}  // namespace standalone
