#include "standalone/window/RowsText.h"

#include <gtest/gtest.h>

#include "window/WindowFixture.h"

namespace standalone {
namespace {

class RowsText : public WindowFixture {
 protected:
  static void Select(Tree& tree, std::size_t position) { tree.SelectRow(tree.GetRow(position), true); }
  static std::string Copy(const Tree& tree) { return CopyRows(tree).toStdString(); }

  qelcore::Ref<Tree> tree = MakeTree(20);
};

TEST_F(RowsText, IsALineOfNamesAndALineForEachSelectedRow) {
  Select(*tree, 7);
  Select(*tree, 2);
  EXPECT_EQ(Copy(*tree), "A\tB\tC\n2 1\t2 2\t2 3\n7 1\t7 2\t7 3\n");
}

TEST_F(RowsText, IsEmptyWhenNoRowIsSelected) {
  EXPECT_EQ(Copy(*tree), "");
}

TEST_F(RowsText, HasTheColumnsThatAreShownInTheirOrder) {
  tree->GetHeaderRow()->MoveColumnByUser(3, 1);
  tree->GetHeaderRow()->RemoveColumn(2);
  Select(*tree, 0);
  EXPECT_EQ(Copy(*tree), "C\tA\n0 1\t0 2\n");
}

TEST_F(RowsText, WhatSeparatesCellsAndLinesBecomesABlank) {
  Draw(*tree, [](qelui::Drawbot& drawbot, Tree::Row*, std::size_t, const qelui::Rect& cell) {
    Tree::DrawCellString(drawbot, cell, qelcore::UTF8String("a\tb\nc"), {}, 0, 0, {}, {},
                         Tree::kAlignLeft, Tree::kCutAtEnd);
  });
  Select(*tree, 0);
  EXPECT_EQ(Copy(*tree), "A\tB\tC\na b c\ta b c\ta b c\n");
}

TEST_F(RowsText, StopsAtTheMostThatIsCopied) {
  const auto large = MakeTree(kMostCopiedRows + 5);
  for (std::size_t i = 0; i < kMostCopiedRows + 5; ++i) Select(*large, i);
  EXPECT_EQ(static_cast<std::size_t>(CopyRows(*large).count('\n')), kMostCopiedRows + 1);
}

}  // namespace
}  // namespace standalone
