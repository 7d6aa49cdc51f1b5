#include "table/ColumnLayout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "host/qelcore/Exceptions.h"
#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "support/HostCalls.h"
#include "table/ColumnFixture.h"

namespace Vantrel {
namespace {

using qelui::controls::UI_MultiColumnTreeHeaderRow;
using ColumnLayout = ColumnFixture;

TEST_F(ColumnLayout, TheFirstTableShowsTheEightDefaultColumnsAtTheirWidths) {
  const auto tree = MakeTree();
  EXPECT_EQ(GetShownColumns(*tree), kDefaultColumns);
  std::vector<float> widths;
  for (std::size_t i = 1; i <= 8; ++i) {
    widths.push_back(tree->GetHeaderRow()->GetColumnWidth(tree->GetHeaderRow()->GetColumnAt(i)));
  }
  EXPECT_EQ(widths, (std::vector<float>{30, 10, 200, 50, 100, 100, 200, 200}));
}

TEST_F(ColumnLayout, TheFirstTableFillsTheStoreWithAllColumnsInPositionOrder) {
  MakeTree();
  const ColumnLayoutList& store = GetColumnLayoutStore();
  Names names;
  for (const auto& column : store) names.emplace_back(column.name.View());
  EXPECT_EQ(names, kAllColumns);
  for (std::size_t i = 0; i < store.size(); ++i) {
    EXPECT_EQ(store[i].position, static_cast<std::int32_t>(i) + 1);
    EXPECT_EQ(store[i].shown, i < 8);
  }
}

TEST_F(ColumnLayout, TheHierarchyColumnIsNamelessWithoutWidthAndStays) {
  const auto tree = MakeTree();
  const auto row = tree->GetHeaderRow();
  EXPECT_EQ(row->GetColumnAt(0), UI_MultiColumnTreeHeaderRow::kHierarchyColumnID);
  EXPECT_TRUE(row->GetColumnNameUTF8(0).Empty());
  EXPECT_EQ(row->GetColumnWidth(0), 0);
}

TEST_F(ColumnLayout, EmptiesTheHierarchyColumnThenRemovesThenAppendsEachColumnWithItsWidth) {
  const auto tree = MakeTree();
  auto& store = GetColumnLayoutStore();
  for (auto& column : store) column.shown = column.id == kColumnClipName || column.id == kColumnCodec;
  const hostcalls::Recording recording;
  ApplyColumnLayout(tree->GetHeaderRow());
  EXPECT_EQ(
      recording.GetCalls({"SetColumnName", "SetColumnWidth", "RemoveColumn", "AppendColumn"}),
      (std::vector<std::string>{"SetColumnName(0, )", "SetColumnWidth(0, 0.0)", "RemoveColumn(100000)",
                                "RemoveColumn(100015)", "RemoveColumn(100004)", "RemoveColumn(100016)",
                                "RemoveColumn(100011)", "RemoveColumn(100021)", "RemoveColumn(100023)",
                                "RemoveColumn(100017)", "AppendColumn(Clip Name, 100015)",
                                "SetColumnWidth(100015, 200.0)", "AppendColumn(Codec, 100001)",
                                "SetColumnWidth(100001, 66.0)"}));
}

TEST_F(ColumnLayout, PositionsAreSignedAndDecideTheOrder) {
  const auto tree = MakeTree();
  auto& store = GetColumnLayoutStore();
  store.back().shown = true;
  store.back().position = -5;
  ApplyColumnLayout(tree->GetHeaderRow());
  EXPECT_EQ(GetShownColumns(*tree).front(), "Video Info");
  EXPECT_EQ(GetColumnLayoutStore().front().id, kColumnVideoInfo);
}

TEST_F(ColumnLayout, AnotherTableStartsWithTheColumnsOfTheStoreAndTheFirstKeepsItsOwn) {
  const auto first = MakeTree();
  auto& store = GetColumnLayoutStore();
  std::ranges::find(store, kColumnTrack, &ColumnLayoutEntry::id)->shown = false;
  const auto second = MakeTree();
  EXPECT_EQ(GetShownColumns(*first), kDefaultColumns);
  EXPECT_EQ(GetShownColumns(*second), (Names{"#", "Label Color", "Clip Name", "Start Time", "Duration",
                                             "Effects", "Transitions"}));
  ApplyColumnLayout(first->GetHeaderRow());
  EXPECT_EQ(GetShownColumns(*first), GetShownColumns(*second));
}

TEST_F(ColumnLayout, DraggedWidthsAndMovedColumnsAreLostAtTheNextApply) {
  const auto tree = MakeTree();
  tree->GetHeaderRow()->ResizeColumnByUser(3, 333);
  ASSERT_EQ(tree->GetHeaderRow()->GetColumnWidth(kColumnClipName), 333);
  ASSERT_TRUE(tree->GetHeaderRow()->MoveColumnByUser(1, 5));
  ASSERT_NE(GetShownColumns(*tree), kDefaultColumns);
  tree->ReapplyColumnLayout(tree->GetHeaderRow());
  EXPECT_EQ(GetShownColumns(*tree), kDefaultColumns);
  EXPECT_EQ(tree->GetHeaderRow()->GetColumnWidth(kColumnClipName), 200);
}

TEST_F(ColumnLayout, ColumnsThatAreNotOfTheCatalogueStay) {
  const auto tree = MakeTree();
  tree->GetHeaderRow()->AppendColumn(qelcore::UTF8String("Other"), 7);
  ApplyColumnLayout(tree->GetHeaderRow());
  EXPECT_EQ(tree->GetHeaderRow()->GetColumnAt(1), 7U);
  EXPECT_EQ(tree->GetHeaderRow()->GetCountOfColumns(), 10U);
}

TEST_F(ColumnLayout, AnEmptyHeaderRowRaisesTheNullPointerErrorWithItsTypeName) {
  try {
    ApplyColumnLayout({});
    FAIL() << "nothing was raised";
  } catch (const qelcore::config::null_pointer_exception& failure) {
    EXPECT_EQ(failure.GetObject(), "qelui::controls::UI_MultiColumnTreeHeaderRow");
  }
  EXPECT_THROW(MakeTree()->ReapplyColumnLayout({}), qelcore::config::null_pointer_exception);
}

TEST_F(ColumnLayout, AFirstColumnIsHiddenWhateverItIs) {
  const Ref row(new UI_MultiColumnTreeHeaderRow(nullptr));
  row->AppendColumn(qelcore::UTF8String("Other"), 7);
  row->SetAllowColumnMovingByUser(true, true);
  ASSERT_TRUE(row->MoveColumnByUser(1, 0));
  ApplyColumnLayout(row);
  EXPECT_TRUE(row->GetColumnNameUTF8(7).Empty());
  EXPECT_EQ(row->GetColumnWidth(7), 0);
  EXPECT_EQ(row->GetColumnWidth(UI_MultiColumnTreeHeaderRow::kHierarchyColumnID), 100);
}

TEST_F(ColumnLayout, ADraggedColumnIsNotWrittenBackToTheStore) {
  const auto tree = MakeTree();
  tree->GetHeaderRow()->ResizeColumnByUser(3, 333);
  ASSERT_EQ(tree->GetHeaderRow()->GetColumnWidth(kColumnClipName), 333);
  ASSERT_TRUE(tree->GetHeaderRow()->MoveColumnByUser(3, 1));
  EXPECT_EQ(GetShownColumns(*MakeTree()), kDefaultColumns);
  EXPECT_EQ(MakeTree()->GetHeaderRow()->GetColumnWidth(kColumnClipName), 200);
}

TEST_F(ColumnLayout, UsersMoveColumnsButNoneToThePlaceOfTheHierarchyColumn) {
  const auto tree = MakeTree();
  EXPECT_FALSE(tree->GetHeaderRow()->MoveColumnByUser(3, 0));
  EXPECT_FALSE(tree->GetHeaderRow()->MoveColumnByUser(0, 3));
  EXPECT_EQ(tree->GetHeaderRow()->GetColumnAt(0), UI_MultiColumnTreeHeaderRow::kHierarchyColumnID);
  EXPECT_TRUE(tree->GetHeaderRow()->MoveColumnByUser(3, 1));
  EXPECT_EQ(GetShownColumns(*tree).front(), "Clip Name");
}

}  // namespace
}  // namespace Vantrel
