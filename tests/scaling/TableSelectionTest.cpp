#include <gtest/gtest.h>

#include <cstddef>

#include "host/qelcore/Reference.h"
#include "host/qelui/MultiColumnTree.h"
#include "scaling/AllocationWatch.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/TreeControl.h"

/// Selecting takes memory for what is selected, not for the rows there are.
namespace {

using qelui::controls::UI_MultiColumnTree;
using scaling::AllocationWatch;

constexpr std::size_t kRows = 1'000'000;
constexpr bool kIsExtending = true;
constexpr bool kIsNotifying = true;

class TableSelection : public testing::Test {
 protected:
  TableSelection() {
    tree->SetSupportMultipleSelections(true);
    tree->UI_SetBounds({0, 0, 300, 400});
    for (std::size_t i = 0; i < kRows; ++i) tree->CreateAndAppendRow(nullptr, true, true);
    tree->LayoutAfterAppendRow();
  }
  void Select(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) tree->SelectRow(tree->GetRow(i), kIsExtending);
  }

  standalone::Runtime runtime;
  qelcore::Ref<UI_MultiColumnTree> tree{new UI_MultiColumnTree(0, 10)};
};

TEST_F(TableSelection, AFewRowsAtTheTopTakeNothingForThoseBelow) {
  const AllocationWatch watch;
  Select(20);
  EXPECT_EQ(tree->GetSelectedRows().size(), 20U);
  tree->DeselectAllRows(kIsNotifying);
  EXPECT_LT(watch.Take().bytes, 2000U);
}

TEST_F(TableSelection, RowsSelectedOneByOneTakeABitEach) {
  Select(1);
  const AllocationWatch watch;
  Select(kRows);
  // Twice for room that is taken ahead, and once for each time that it was taken before.
  EXPECT_LT(watch.Take().bytes, 4 * kRows / 8);
  EXPECT_LT(watch.Take().count, 40U);
}

TEST_F(TableSelection, DeselectingTakesNoMemoryAndKeepsItForTheNextSelection) {
  Select(kRows);
  const AllocationWatch watch;
  tree->DeselectAllRows(!kIsNotifying);
  Select(kRows);
  EXPECT_EQ(watch.Take().count, 0U);
}

TEST_F(TableSelection, AllRowsAreSelectedAtOnce) {
  const AllocationWatch watch;
  tree->GetControl().SelectAll();
  EXPECT_LT(watch.Take().bytes, 2 * kRows / 8);
  EXPECT_LT(watch.Take().count, 20U);
}

TEST_F(TableSelection, AClickTakesNoMoreThanABitForEachRowAboveIt) {
  tree->GetControl().SelectAll();
  const AllocationWatch watch;
  tree->GetControl().Click(100, 0);
  EXPECT_LT(watch.Take().bytes, 2000U);
}

}  // namespace
