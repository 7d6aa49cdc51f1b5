#include "standalone/window/TreeHeader.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>

#include "window/WindowFixture.h"

namespace standalone {
namespace {

using qelui::ui::MouseButton;
using qelui::ui::MouseEvent;
using qelui::ui::PointerAction;
using Names = std::vector<std::string>;

/// Keeps the presses that it is offered, and handles them if the test says so.
class WatchedHeaderRow final : public HeaderRow {
 public:
  using HeaderRow::HeaderRow;
  bool UI_DoMouseEvent(const MouseEvent& event) override {
    events.push_back(event);
    return isHandling;
  }
  void SetColumnMoveCursor(bool isMoving) override {
    cursorCalls.push_back(isMoving);
    HeaderRow::SetColumnMoveCursor(isMoving);
  }
  std::vector<MouseEvent> events;
  std::vector<bool> cursorCalls;
  bool isHandling = false;
};

class Header : public WindowFixture {
 protected:
  Header() {
    headerRow = qelcore::Ref(new WatchedHeaderRow(tree.Get()));
    headerRow->SetColumnWidth(HeaderRow::kHierarchyColumnID, 0);
    headerRow->SetAllowColumnMovingByUser(true, false);
    for (const char* name : {"A", "B", "C"}) {
      headerRow->AppendColumn(qelcore::UTF8String(name), static_cast<std::uint32_t>(name[0]));
    }
    tree->SetHeaderRow(headerRow);
    widget = Show(tree);
  }
  QWidget* GetSurface() const { return widget->GetHeader().viewport(); }
  void Press(QPoint place, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(GetSurface(), button, Qt::NoModifier, place);
  }
  void Move(QPoint place) { QTest::mouseMove(GetSurface(), place); }
  void Release(QPoint place, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseRelease(GetSurface(), button, Qt::NoModifier, place);
    Settle();
  }
  void Drag(QPoint from, QPoint to) {
    Press(from);
    Move((from + to) / 2);
    Move(to);
    Release(to);
  }
  Names GetNames() const {
    Names names;
    for (std::size_t i = 1; i < headerRow->GetCountOfColumns(); ++i) {
      names.emplace_back(headerRow->GetColumnNameUTF8(headerRow->GetColumnAt(i)).View());
    }
    return names;
  }
  Names GetSectionNames() const {
    Names names;
    const auto& header = widget->GetHeader();
    for (int i = 1; i < header.count(); ++i) {
      EXPECT_EQ(header.visualIndex(i), i);
      names.push_back(header.model()->headerData(i, Qt::Horizontal).toString().toStdString());
    }
    return names;
  }

  qelcore::Ref<Tree> tree = MakeTree(3);
  qelcore::Ref<WatchedHeaderRow> headerRow;
  std::unique_ptr<TreeWidget> widget;
};

TEST_F(Header, ADragMovesAColumnAndTheBodyFollows) {
  Drag({50, 10}, {190, 10});
  EXPECT_EQ(GetNames(), (Names{"B", "A", "C"}));
  EXPECT_EQ(GetSectionNames(), (Names{"B", "A", "C"}));
  EXPECT_EQ(widget->GetColumns().GetShown()[0].id, static_cast<std::uint32_t>('B'));
}

TEST_F(Header, ADragToTheLeftMovesAColumnToo) {
  Drag({250, 10}, {20, 10});
  EXPECT_EQ(GetNames(), (Names{"C", "A", "B"}));
  EXPECT_EQ(GetSectionNames(), (Names{"C", "A", "B"}));
}

TEST_F(Header, ADragMovesAColumnThatIsScrolledSideways) {
  widget->resize(Room(200, 200));
  Settle();
  widget->horizontalScrollBar()->setValue(70);
  Drag({80, 10}, {190, 10});
  EXPECT_EQ(GetNames(), (Names{"A", "C", "B"}));
  EXPECT_EQ(GetSectionNames(), (Names{"A", "C", "B"}));
  EXPECT_EQ(headerRow->GetScrollOffset(), 70);
}

TEST_F(Header, ADragWhoseReleaseWasLostIsOver) {
  Press({50, 10});
  Move({120, 10});
  QMouseEvent move(QEvent::MouseMove, QPointF(150, 10), QPointF(150, 10), Qt::NoButton, Qt::NoButton,
                   Qt::NoModifier);
  QApplication::sendEvent(GetSurface(), &move);
  EXPECT_FALSE(headerRow->HasColumnMoveCursor());
  Release({150, 10});
}

TEST_F(Header, ARefusedMoveSnapsBack) {
  headerRow->SetAllowColumnMovingByUser(false, false);
  Drag({50, 10}, {190, 10});
  EXPECT_EQ(GetNames(), (Names{"A", "B", "C"}));
  EXPECT_EQ(GetSectionNames(), (Names{"A", "B", "C"}));
}

TEST_F(Header, TheFirstColumnKeepsItsPlace) {
  headerRow->SetColumnWidth(HeaderRow::kHierarchyColumnID, 50);
  Settle();
  Drag({25, 10}, {240, 10});
  EXPECT_EQ(headerRow->GetColumnAt(0), HeaderRow::kHierarchyColumnID);
  Drag({100, 10}, {5, 10});
  EXPECT_EQ(headerRow->GetColumnAt(0), HeaderRow::kHierarchyColumnID);
  EXPECT_EQ(GetSectionNames(), (Names{"A", "B", "C"}));
}

TEST_F(Header, TheCursorShowsThatAColumnIsDragged) {
  Press({50, 10});
  EXPECT_EQ(headerRow->cursorCalls, std::vector<bool>{});
  Move({120, 10});
  EXPECT_EQ(headerRow->cursorCalls, std::vector<bool>{true});
  EXPECT_EQ(widget->GetHeader().cursor().shape(), Qt::ClosedHandCursor);
  Release({120, 10});
  EXPECT_EQ(headerRow->cursorCalls, (std::vector<bool>{true, false}));
  EXPECT_NE(widget->GetHeader().cursor().shape(), Qt::ClosedHandCursor);
}

TEST_F(Header, ADraggedBorderResizesTheColumnOnItsLeft) {
  Drag({99, 10}, {149, 10});
  EXPECT_EQ(headerRow->GetColumnWidth('A'), 150);
  EXPECT_EQ(widget->GetColumns().GetShown()[1].left, 150);
  EXPECT_TRUE(headerRow->cursorCalls.empty());
}

TEST_F(Header, NoColumnIsDraggedNarrowerThanTheNarrowest) {
  Drag({99, 10}, {1, 10});
  EXPECT_EQ(headerRow->GetColumnWidth('A'), HeaderRow::kNarrowestColumn);
  EXPECT_EQ(widget->GetHeader().sectionSize(1), static_cast<int>(HeaderRow::kNarrowestColumn));
}

TEST_F(Header, ADoubleClickOnABorderFitsTheColumnToItsContent) {
  const std::string text = "A rather long text, too long";
  Draw(*tree, [&](qelui::Drawbot& drawbot, Tree::Row*, std::size_t column, const qelui::Rect& cell) {
    if (column != 1) return;
    Tree::DrawCellString(drawbot, cell, qelcore::UTF8String(text), {}, 10, 6, {}, {}, 0, 2);
  });
  QTest::mouseDClick(GetSurface(), Qt::LeftButton, Qt::NoModifier, QPoint(99, 10));
  Settle();
  const qreal advance = QFontMetricsF(QApplication::font()).horizontalAdvance(text.c_str());
  EXPECT_NEAR(headerRow->GetColumnWidth('A'), advance + 12, 1.5);
  EXPECT_EQ(headerRow->GetColumnWidth('B'), 100);
}

TEST_F(Header, AFittedColumnShowsItsName) {
  Draw(*tree, [](qelui::Drawbot&, Tree::Row*, std::size_t, const qelui::Rect&) {});
  headerRow->SetColumnName('A', qelcore::UTF8String("A name of some length"));
  widget->FitColumn(1);
  const qreal advance = QFontMetricsF(QApplication::font()).horizontalAdvance("A name of some length");
  EXPECT_NEAR(headerRow->GetColumnWidth('A'), advance + 12, 3);
}

TEST_F(Header, EveryPressIsOfferedToTheHeaderRow) {
  Press({50, 10});
  Release({50, 10});
  Press({60, 11}, Qt::RightButton);
  Release({60, 11}, Qt::RightButton);
  ASSERT_EQ(headerRow->events.size(), 2U);
  EXPECT_EQ(headerRow->events[0].GetButton(), MouseButton::kPrimary);
  EXPECT_EQ(headerRow->events[1].GetButton(), MouseButton::kContextMenu);
  EXPECT_EQ(headerRow->events[1].GetAction(), PointerAction::kPress);
  EXPECT_EQ(headerRow->events[1].GetClickCount(), 1U);
  EXPECT_EQ(headerRow->events[1].GetPosition(), (qelui::Point{60, 11}));
}

TEST_F(Header, TheSecondPressOfADoubleClickCountsTwo) {
  QTest::mouseDClick(GetSurface(), Qt::RightButton, Qt::NoModifier, QPoint(50, 10));
  ASSERT_FALSE(headerRow->events.empty());
  EXPECT_EQ(headerRow->events.back().GetClickCount(), 2U);
  EXPECT_EQ(headerRow->events.back().GetAction(), PointerAction::kPress);
}

TEST_F(Header, APressThatTheHeaderRowHandlesDoesNothingElse) {
  headerRow->isHandling = true;
  Drag({50, 10}, {190, 10});
  EXPECT_EQ(GetNames(), (Names{"A", "B", "C"}));
}

TEST_F(Header, AClickDoesNotSort) {
  Press({50, 10});
  Release({50, 10});
  EXPECT_FALSE(widget->GetHeader().isSortIndicatorShown());
  EXPECT_EQ(widget->GetHeader().sortIndicatorSection(), 0);
  EXPECT_EQ(GetNames(), (Names{"A", "B", "C"}));
}

TEST_F(Header, KeysOpenTheMenuBelowTheColumnPressedLast) {
  QTest::mouseClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier, FindCell(*widget, 1, 1));
  QTest::keyClick(widget.get(), Qt::Key_Menu);
  QTest::keyClick(widget.get(), Qt::Key_F10, Qt::ShiftModifier);
  ASSERT_EQ(headerRow->events.size(), 2U);
  for (const MouseEvent& event : headerRow->events) {
    EXPECT_EQ(event.GetButton(), MouseButton::kContextMenu);
    EXPECT_EQ(event.GetAction(), PointerAction::kPress);
    EXPECT_EQ(event.GetClickCount(), 1U);
    EXPECT_EQ(event.GetPosition(), (qelui::Point{100, kHeaderHeight}));
  }
}

TEST_F(Header, KeysOpenTheMenuBelowThePressedColumnsNewPlace) {
  QTest::mouseClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier, FindCell(*widget, 1, 1));
  headerRow->MoveColumnByUser(2, 3);
  QTest::keyClick(widget.get(), Qt::Key_Menu);
  ASSERT_EQ(headerRow->events.size(), 1U);
  EXPECT_EQ(headerRow->events[0].GetPosition().x, 200);
}

TEST_F(Header, KeysOpenTheMenuBelowTheFirstColumnSeenOtherwise) {
  widget->resize(Room(150, 200));
  Settle();
  widget->horizontalScrollBar()->setValue(120);
  QTest::keyClick(widget.get(), Qt::Key_Menu);
  ASSERT_EQ(headerRow->events.size(), 1U);
  EXPECT_EQ(headerRow->events[0].GetPosition().x, 0);
}

TEST_F(Header, AHeaderRowMayEndTheWindowWhileItHandlesAPress) {
  class EndingHeaderRow final : public HeaderRow {
   public:
    using HeaderRow::HeaderRow;
    bool UI_DoMouseEvent(const MouseEvent&) override {
      end();
      return false;
    }
    std::function<void()> end;
  };
  const auto ending = qelcore::Ref(new EndingHeaderRow(tree.Get()));
  ending->end = [&] { widget.reset(); };
  tree->SetHeaderRow(ending);
  tree->UI_Invalidate();
  Settle();
  QMouseEvent event(QEvent::MouseButtonPress, QPointF(50, 10), QPointF(50, 10), Qt::RightButton,
                    Qt::RightButton, Qt::NoModifier);
  QApplication::sendEvent(GetSurface(), &event);
  EXPECT_EQ(widget, nullptr);
}

TEST_F(Header, ColumnsThatGoDuringADragEndIt) {
  Press({50, 10});
  Move({150, 10});
  headerRow->RemoveColumn('A');
  headerRow->RemoveColumn('B');
  Settle();
  Move({190, 10});
  Release({190, 10});
  EXPECT_EQ(GetNames(), Names{"C"});
  EXPECT_EQ(GetSectionNames(), Names{"C"});
}

}  // namespace
}  // namespace standalone
