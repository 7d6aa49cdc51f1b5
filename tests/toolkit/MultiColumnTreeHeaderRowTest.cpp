#include "host/qelui/MultiColumnTreeHeaderRow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <utility>
#include <vector>

#include "host/qelcore/Exceptions.h"
#include "host/qelui/MultiColumnTree.h"
#include "standalone/runtime/Runtime.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelcore::Ref;
using qelcore::UTF8String;
using qelcore::config::qel_exception;
using qelui::controls::UI_MultiColumnTree;
using qelui::controls::UI_MultiColumnTreeHeaderRow;
using testing::ElementsAre;

constexpr std::uint32_t kHierarchy = UI_MultiColumnTreeHeaderRow::kHierarchyColumnID;
constexpr bool kIsAllowed = true;
constexpr bool kIsIncludingFirst = true;

class HeaderRow : public testing::Test {
 protected:
  void AppendThreeColumns() {
    header->AppendColumn(UTF8String("Name"), 11);
    header->AppendColumn(UTF8String("Start"), 12);
    header->AppendColumn(UTF8String("End"), 13);
  }
  std::vector<std::uint32_t> GetColumns() const {
    std::vector<std::uint32_t> ids;
    for (std::size_t i = 0; i < header->GetCountOfColumns(); ++i) ids.push_back(header->GetColumnAt(i));
    return ids;
  }

  standalone::Runtime runtime;
  Ref<UI_MultiColumnTree> tree{new UI_MultiColumnTree(0, 18)};
  Ref<UI_MultiColumnTreeHeaderRow> header{new UI_MultiColumnTreeHeaderRow(tree.Get())};
};

TEST_F(HeaderRow, BeginsWithTheHierarchyColumnAlone) {
  EXPECT_THAT(GetColumns(), ElementsAre(kHierarchy));
  EXPECT_EQ(header->GetIndexOfColumn(kHierarchy), 0);
}

TEST_F(HeaderRow, AppendsColumnsAtTheRightWithTheDefaultWidth) {
  AppendThreeColumns();
  EXPECT_THAT(GetColumns(), ElementsAre(kHierarchy, 11, 12, 13));
  EXPECT_EQ(header->GetColumnNameUTF8(12), "Start");
  EXPECT_EQ(header->GetColumnWidth(12), 100);
  EXPECT_EQ(header->GetIndexOfColumn(13), 3);
}

TEST_F(HeaderRow, RefusesASecondColumnOfAnIdentifier) {
  AppendThreeColumns();
  EXPECT_THROW(header->AppendColumn(UTF8String("Again"), 12), qel_exception);
  EXPECT_THROW(header->AppendColumn(UTF8String("Again"), kHierarchy), qel_exception);
  EXPECT_THAT(GetColumns(), ElementsAre(kHierarchy, 11, 12, 13));
}

TEST_F(HeaderRow, HasNoColumnBeyondTheLast) {
  EXPECT_THROW(header->GetColumnAt(1), qel_exception);
}

TEST_F(HeaderRow, AnswersEmptyForAColumnItDoesNotHave) {
  EXPECT_EQ(header->GetIndexOfColumn(99), -1);
  EXPECT_TRUE(header->GetColumnNameUTF8(99).Empty());
  EXPECT_EQ(header->GetColumnWidth(99), 0);
}

TEST_F(HeaderRow, IgnoresChangesOfAColumnItDoesNotHave) {
  header->RemoveColumn(99);
  header->SetColumnName(99, UTF8String("Name"));
  header->SetColumnWidth(99, 50);
  EXPECT_THAT(GetColumns(), ElementsAre(kHierarchy));
}

TEST_F(HeaderRow, RenamesAndResizesAnyColumn) {
  AppendThreeColumns();
  header->SetColumnName(kHierarchy, UTF8String("Tree"));
  header->SetColumnWidth(kHierarchy, 0);
  header->SetColumnWidth(12, 62.5F);
  EXPECT_EQ(header->GetColumnNameUTF8(kHierarchy), "Tree");
  EXPECT_EQ(header->GetColumnWidth(kHierarchy), 0);
  EXPECT_EQ(header->GetColumnWidth(12), 62.5F);
}

TEST_F(HeaderRow, ANegativeWidthCountsAsZero) {
  header->SetColumnWidth(kHierarchy, -1);
  EXPECT_EQ(header->GetColumnWidth(kHierarchy), 0);
}

TEST_F(HeaderRow, RemovesAnyColumnButTheHierarchyColumn) {
  AppendThreeColumns();
  header->RemoveColumn(12);
  header->RemoveColumn(kHierarchy);
  EXPECT_THAT(GetColumns(), ElementsAre(kHierarchy, 11, 13));
}

TEST_F(HeaderRow, UsersMoveColumnsToTheRightAndToTheLeft) {
  AppendThreeColumns();
  header->SetAllowColumnMovingByUser(kIsAllowed, !kIsIncludingFirst);
  EXPECT_TRUE(header->MoveColumnByUser(1, 3));
  EXPECT_THAT(GetColumns(), ElementsAre(kHierarchy, 12, 13, 11));
  EXPECT_TRUE(header->MoveColumnByUser(3, 2));
  EXPECT_THAT(GetColumns(), ElementsAre(kHierarchy, 12, 11, 13));
}

TEST_F(HeaderRow, UsersCanNeitherMoveTheFirstColumnNorPutOneBeforeIt) {
  AppendThreeColumns();
  header->SetAllowColumnMovingByUser(kIsAllowed, !kIsIncludingFirst);
  EXPECT_FALSE(header->MoveColumnByUser(0, 2));
  EXPECT_FALSE(header->MoveColumnByUser(2, 0));
  EXPECT_FALSE(header->MoveColumnByUser(1, 4));
  EXPECT_THAT(GetColumns(), ElementsAre(kHierarchy, 11, 12, 13));
}

TEST_F(HeaderRow, UsersMoveTheFirstColumnOnlyWhereItTakesPart) {
  AppendThreeColumns();
  header->SetAllowColumnMovingByUser(kIsAllowed, kIsIncludingFirst);
  EXPECT_TRUE(header->MoveColumnByUser(2, 0));
  EXPECT_THAT(GetColumns(), ElementsAre(12, kHierarchy, 11, 13));
}

TEST_F(HeaderRow, UsersMoveNothingUnlessAllowed) {
  AppendThreeColumns();
  EXPECT_FALSE(header->MoveColumnByUser(1, 2));
}

TEST_F(HeaderRow, UsersResizeTheColumnAtADisplayIndex) {
  AppendThreeColumns();
  header->SetAllowColumnMovingByUser(kIsAllowed, !kIsIncludingFirst);
  header->MoveColumnByUser(1, 3);
  header->ResizeColumnByUser(1, 62.5F);
  EXPECT_EQ(header->GetColumnWidth(12), 62.5F);
  EXPECT_EQ(header->GetColumnWidth(11), 100);
}

TEST_F(HeaderRow, UsersMakeNoColumnNarrowerThanTheNarrowest) {
  AppendThreeColumns();
  for (const float width : {3.0F, 0.0F, -50.0F, std::numeric_limits<float>::quiet_NaN()}) {
    header->ResizeColumnByUser(2, width);
    EXPECT_EQ(header->GetColumnWidth(12), UI_MultiColumnTreeHeaderRow::kNarrowestColumn);
  }
}

TEST_F(HeaderRow, UsersResizeNeitherTheHierarchyColumnNorOneThatIsNotThere) {
  AppendThreeColumns();
  header->SetColumnWidth(kHierarchy, 0);
  header->ResizeColumnByUser(0, 50);
  header->ResizeColumnByUser(4, 50);
  EXPECT_EQ(header->GetColumnWidth(kHierarchy), 0);
  for (const std::uint32_t id : {11U, 12U, 13U}) EXPECT_EQ(header->GetColumnWidth(id), 100);
}

TEST_F(HeaderRow, IsScrolledByAsManyPixelsAsGivenAndNeverToTheLeftOfItsBeginning) {
  EXPECT_EQ(header->GetScrollOffset(), 0);
  header->SetScrollOffset(30.5F);
  EXPECT_EQ(header->GetScrollOffset(), 30.5F);
  header->SetScrollOffset(-3);
  EXPECT_EQ(header->GetScrollOffset(), 0);
}

TEST_F(HeaderRow, ThePointerShowsThatAColumnIsDragged) {
  EXPECT_FALSE(header->HasColumnMoveCursor());
  header->SetColumnMoveCursor(true);
  EXPECT_TRUE(header->HasColumnMoveCursor());
  header->SetColumnMoveCursor(false);
  EXPECT_FALSE(header->HasColumnMoveCursor());
}

TEST_F(HeaderRow, HidesTheSortIndicator) {
  header->ShowSortIndicator(false);
  EXPECT_FALSE(header->IsSortIndicatorShown());
  header->ShowSortIndicator(true);
  EXPECT_TRUE(header->IsSortIndicatorShown());
}

class HeaderRowChanges : public HeaderRow {
 protected:
  HeaderRowChanges() {
    AppendThreeColumns();
    header->SetAllowColumnMovingByUser(kIsAllowed, !kIsIncludingFirst);
    header->UI_SetWatcher([this] { ++count; });
  }
  /// How often the header row asked to be drawn anew since the last call.
  int TakeCount() { return std::exchange(count, 0); }

 private:
  int count = 0;
};

TEST_F(HeaderRowChanges, EachHasItDrawnAnew) {
  header->AppendColumn(UTF8String("Track"), 14);
  EXPECT_EQ(TakeCount(), 1);
  header->RemoveColumn(14);
  EXPECT_EQ(TakeCount(), 1);
  header->SetColumnName(12, UTF8String("In"));
  EXPECT_EQ(TakeCount(), 1);
  header->SetColumnWidth(12, 70);
  EXPECT_EQ(TakeCount(), 1);
  header->MoveColumnByUser(1, 2);
  EXPECT_EQ(TakeCount(), 1);
  header->ResizeColumnByUser(1, 80);
  EXPECT_EQ(TakeCount(), 1);
  header->SetScrollOffset(5);
  EXPECT_EQ(TakeCount(), 1);
  header->ShowSortIndicator(false);
  EXPECT_EQ(TakeCount(), 1);
  header->SetColumnMoveCursor(true);
  EXPECT_EQ(TakeCount(), 1);
}

TEST_F(HeaderRowChanges, WhatIsAsItWasIsNone) {
  header->RemoveColumn(99);
  header->RemoveColumn(kHierarchy);
  header->SetColumnName(12, UTF8String("Start"));
  header->SetColumnWidth(12, 100);
  header->SetColumnWidth(99, 70);
  header->MoveColumnByUser(0, 2);
  header->ResizeColumnByUser(0, 80);
  header->SetScrollOffset(0);
  header->ShowSortIndicator(true);
  header->SetColumnMoveCursor(false);
  EXPECT_EQ(TakeCount(), 0);
}

TEST_F(HeaderRow, OperationsStopOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(header->GetCountOfColumns(),
                               "UI_MultiColumnTreeHeaderRow::GetCountOfColumns");
  EXPECT_STOPS_OFF_MAIN_THREAD(header->AppendColumn({}, 5),
                               "UI_MultiColumnTreeHeaderRow::AppendColumn");
  EXPECT_STOPS_OFF_MAIN_THREAD(header->ResizeColumnByUser(1, 50),
                               "UI_MultiColumnTreeHeaderRow::ResizeColumnByUser");
  EXPECT_STOPS_OFF_MAIN_THREAD(header->SetScrollOffset(5),
                               "UI_MultiColumnTreeHeaderRow::SetScrollOffset");
  EXPECT_STOPS_OFF_MAIN_THREAD(header->SetColumnMoveCursor(true),
                               "UI_MultiColumnTreeHeaderRow::SetColumnMoveCursor");
  EXPECT_STOPS_OFF_MAIN_THREAD(header->GetStyleResource(),
                               "UI_MultiColumnTreeHeaderRow::GetStyleResource");
  EXPECT_STOPS_OFF_MAIN_THREAD(header->GetColumnAt(0), "UI_MultiColumnTreeHeaderRow::GetColumnAt");
}

}  // namespace
