#include "standalone/window/TreeAccessible.h"

#include <gtest/gtest.h>

#include <QTest>
#include <stdexcept>

#include "standalone/window/CellDescription.h"
#include "table/ColumnLayout.h"
#include "table/DrawingFixture.h"
#include "window/AccessibilityCalls.h"
#include "window/WindowFixture.h"

namespace standalone {
namespace {

class Accessible : public WindowFixture {
 protected:
  QAccessibleInterface& GetInterface() { return *QAccessible::queryAccessibleInterface(widget.get()); }
  QAccessibleTableInterface& GetTable() { return *GetInterface().tableInterface(); }
  std::string GetCellText(int row, int column) {
    return GetTable().cellAt(row, column)->text(QAccessible::Name).toStdString();
  }

  qelcore::Ref<Tree> tree = MakeTree(100);
  std::unique_ptr<TreeWidget> widget = Show(tree);
};

TEST_F(Accessible, ATableHasRowsColumnsAndCells) {
  EXPECT_EQ(GetInterface().role(), QAccessible::Table);
  EXPECT_EQ(GetTable().rowCount(), 100);
  EXPECT_EQ(GetTable().columnCount(), 3);
  EXPECT_EQ(GetInterface().childCount(), 300);
  EXPECT_EQ(GetTable().columnDescription(1).toStdString(), "B");
  EXPECT_EQ(GetCellText(7, 0), "7 1");
  EXPECT_EQ(GetCellText(7, 2), "7 3");
}

TEST_F(Accessible, CellsAreTheTablesChildrenRowByRow) {
  auto* const cell = GetInterface().child(7 * 3 + 2);
  EXPECT_EQ(cell->text(QAccessible::Name).toStdString(), "7 3");
  EXPECT_EQ(cell, GetTable().cellAt(7, 2));
  EXPECT_EQ(GetInterface().indexOfChild(cell), 23);
  EXPECT_EQ(cell->parent(), &GetInterface());
  EXPECT_EQ(cell->role(), QAccessible::Cell);
  ASSERT_NE(cell->tableCellInterface(), nullptr);
  EXPECT_EQ(cell->tableCellInterface()->rowIndex(), 7);
  EXPECT_EQ(cell->tableCellInterface()->columnIndex(), 2);
  EXPECT_EQ(cell->tableCellInterface()->table(), &GetInterface());
}

TEST_F(Accessible, ACellNamesItsColumn) {
  const auto headers = GetTable().cellAt(7, 2)->tableCellInterface()->columnHeaderCells();
  ASSERT_EQ(headers.size(), 1);
  EXPECT_EQ(headers[0]->text(QAccessible::Name).toStdString(), "C");
  EXPECT_EQ(headers[0]->role(), QAccessible::ColumnHeader);
  EXPECT_EQ(headers[0]->rect(),
            QRect(widget->GetHeader().mapToGlobal(QPoint(200, 0)), QSize(100, kHeaderHeight)));
}

TEST_F(Accessible, ThereIsNothingBeyondTheTable) {
  EXPECT_EQ(GetTable().cellAt(100, 0), nullptr);
  EXPECT_EQ(GetTable().cellAt(-1, 0), nullptr);
  EXPECT_EQ(GetTable().cellAt(0, 3), nullptr);
  EXPECT_EQ(GetInterface().child(300), nullptr);
  EXPECT_EQ(GetInterface().child(-1), nullptr);
}

TEST_F(Accessible, ACellIsFoundWhereItIsSeen) {
  auto* const cell = GetTable().cellAt(3, 1);
  const QRect area = cell->rect();
  EXPECT_EQ(area, QRect(widget->viewport()->mapToGlobal(QPoint(100, 60)), QSize(100, 20)));
  EXPECT_EQ(GetInterface().childAt(area.center().x(), area.center().y()), cell);
  EXPECT_EQ(GetInterface().childAt(area.left() + 290, area.top()), nullptr);
  EXPECT_FALSE(cell->state().offscreen);
  EXPECT_TRUE(GetTable().cellAt(50, 1)->state().offscreen);
}

TEST_F(Accessible, SelectingARowIsTheUsersGesture) {
  int callCount = 0;
  tree->SetRowsSelectionChangedCallback(std::make_shared<const Tree::RowsSelectionChangedFunction>(
      [&](const std::vector<Tree::Row*>&) { ++callCount; }));
  EXPECT_TRUE(GetTable().selectRow(3));
  EXPECT_TRUE(GetTable().selectRow(5));
  EXPECT_TRUE(GetTable().selectRow(5));
  EXPECT_EQ(GetTable().selectedRows(), (QList<int>{3, 5}));
  EXPECT_EQ(GetTable().selectedRowCount(), 2);
  EXPECT_EQ(GetTable().selectedCellCount(), 6);
  EXPECT_TRUE(GetTable().isRowSelected(3));
  EXPECT_TRUE(GetTable().cellAt(3, 0)->state().selected);
  EXPECT_TRUE(GetTable().unselectRow(3));
  EXPECT_FALSE(GetTable().isRowSelected(3));
  EXPECT_FALSE(GetTable().unselectRow(3));
  EXPECT_FALSE(GetTable().selectRow(100));
  EXPECT_EQ(callCount, 3);
}

TEST_F(Accessible, TheCurrentCellHasTheFocus) {
  EXPECT_EQ(GetInterface().focusChild(), nullptr);
  QTest::mouseClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier, FindCell(*widget, 4, 1));
  EXPECT_EQ(GetInterface().focusChild(), GetTable().cellAt(4, 1));
  EXPECT_TRUE(GetTable().cellAt(4, 1)->state().focused);
  EXPECT_FALSE(GetTable().cellAt(4, 0)->state().focused);
}

TEST_F(Accessible, MovesAndSelectionsAreTold) {
  QTest::mouseClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier, FindCell(*widget, 4));
  const ToldWatch watch;
  QTest::keyClick(widget.get(), Qt::Key_Down);
  EXPECT_EQ(watch.GetTold(),
            (std::vector<Told>{{QAccessible::SelectionWithin, -1}, {QAccessible::Focus, 15}}));
}

TEST_F(Accessible, NewRowsAreTold) {
  const ToldWatch watch;
  tree->RemoveAllRows(false, true);
  AppendRows(*tree, 5);
  Settle();
  EXPECT_EQ(watch.GetTold(), (std::vector<Told>{{QAccessible::TableModelChanged, -1}}));
}

TEST_F(Accessible, NothingIsToldWhenNothingChanged) {
  const ToldWatch watch;
  tree->UI_Invalidate();
  Settle();
  EXPECT_TRUE(watch.GetTold().empty());
}

TEST_F(Accessible, ACellThatFailsHasNoText) {
  Draw(*tree, [](qelui::Drawbot&, Tree::Row*, std::size_t, const qelui::Rect&) {
    throw std::runtime_error("no such clip");
  });
  EXPECT_EQ(GetCellText(0, 0), "");
  EXPECT_FALSE(host.TakeFailures().empty());
}

TEST_F(Accessible, CellsOfATableThatIsGoneAreInvalid) {
  auto* const cell = GetTable().cellAt(3, 1);
  tree.Reset();
  EXPECT_FALSE(cell->isValid());
  EXPECT_TRUE(cell->state().invalid);
  EXPECT_EQ(cell->text(QAccessible::Name), QString());
  EXPECT_EQ(GetTable().rowCount(), 0);
  EXPECT_EQ(GetInterface().childCount(), 0);
  EXPECT_EQ(GetInterface().child(0), nullptr);
}

TEST_F(Accessible, AMillionRowsCostNoCells) {
  AppendRows(*tree, 999'900);
  Settle();
  EXPECT_EQ(GetTable().rowCount(), 1'000'000);
  EXPECT_EQ(GetInterface().childCount(), 3'000'000);
  EXPECT_EQ(GetCellText(999'999, 0), "999999 1");
  // Whoever reads on and on is given new cells for old ones.
  for (int row = 0; row < 3000; ++row) EXPECT_NE(GetTable().cellAt(row, row % 3), nullptr);
  for (int row = 0; row < 3000; ++row) EXPECT_NE(GetTable().cellAt(row, (row + 1) % 3), nullptr);
  EXPECT_EQ(GetCellText(0, 0), "0 1");
}

TEST_F(Accessible, AllSelectedCellsAreKnownThoughManyOthersWereAskedFor) {
  AppendRows(*tree, 1900);
  for (int i = 0; i < 4000; ++i) GetTable().cellAt(1999 - i / 3, i % 3);
  for (std::size_t row = 0; row < 200; ++row) tree->SelectRow(tree->GetRow(row), true);
  const auto found = GetTable().selectedCells();
  ASSERT_EQ(found.size(), 600);
  for (int i = 0; i < 600; ++i) EXPECT_EQ(GetTable().cellAt(i / 3, i % 3), found[i]) << i;
}

TEST_F(Accessible, AskingForTheNameOfItsColumnNeverCostsACellItsLife) {
  AppendRows(*tree, 1900);
  const auto last = QAccessible::uniqueId(GetTable().cellAt(0, 0));
  for (int i = 1; i < 4096; ++i) GetTable().cellAt(i / 3, i % 3);
  GetTable().cellAt(0, 0)->tableCellInterface()->columnHeaderCells();
  EXPECT_EQ(QAccessible::uniqueId(GetTable().cellAt(0, 0)), last);
}

TEST_F(Accessible, TheModulesTableSpeaks) {
  Vantrel::GetColumnLayoutStore().clear();
  auto index = qelcore::Ref(new Vantrel::SequenceIndexTree({}, 0, kRowHeight));
  auto draft = Vantrel::MakeRichSequence();
  draft.tracks[0].items[0].clip->labelColor = {0x3F, 0x7F, 0xBF, 0xFF};
  index->SetSequence(AddSequence(std::move(draft)));
  host.Settle();
  tree = index;
  widget = Show(tree, {900, 220});
  EXPECT_EQ(GetTable().columnDescription(1).toStdString(), "Label Color");
  EXPECT_EQ(GetCellText(0, 0), "1");
  EXPECT_EQ(GetCellText(0, 2), "Interview");
  EXPECT_EQ(GetCellText(0, 4), "01:00:00:00");
  EXPECT_EQ(GetCellText(0, 1), "colour #3F7FBF");
}

}  // namespace
}  // namespace standalone
