#include "table/HeaderRow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "host/qelui/Menu.h"
#include "support/Drafts.h"
#include "support/HostCalls.h"
#include "support/HostFaults.h"
#include "support/LocalizedKeys.h"
#include "table/ColumnFixture.h"

namespace Vantrel {
namespace {

using HeaderRow = ColumnFixture;

TEST_F(HeaderRow, TheMenuListsTheCommandsThenTheColumnsByHeaderTextWithTheirMarks) {
  const auto tree = MakeTree();
  PressMenuButton(*tree, {17, 4});
  ASSERT_EQ(answers.menuItems.size(), 29U);
  EXPECT_EQ(answers.menuItems[0].text, "Show All Columns");
  EXPECT_EQ(answers.menuItems[0].commandID, 100U);
  EXPECT_EQ(answers.menuItems[1].text, "Show Default Columns");
  EXPECT_EQ(answers.menuItems[1].commandID, 101U);
  EXPECT_EQ(answers.menuItems[2].commandID, 0U) << "a separator";
  const ColumnLayoutList catalogue = GetColumnCatalogue();
  for (std::size_t i = 0; i < catalogue.size(); ++i) {
    const standalone::MenuItem& item = answers.menuItems[i + 3];
    EXPECT_EQ(item.text, catalogue[i].name);
    EXPECT_EQ(item.commandID, catalogue[i].id);
    EXPECT_EQ(item.isChecked, catalogue[i].defaultShown) << catalogue[i].name.View();
  }
  EXPECT_EQ(answers.menuPosition, (qelui::Point{17, 4}));
}

TEST_F(HeaderRow, TheTextsOfTheMenusCommandsAreLocalisedOnce) {
  const auto tree = MakeTree();
  PressMenuButton(*tree);
  PressMenuButton(*tree);
  for (const char* const key :
       {"$$$/Corvel/Handlers/SeqenceIndex/SelectAll=Show All Columns#{comment}QELMX-4248997",
        "$$$//Corvel/Handlers/SeqenceIndex/SelectDefaults=Show Default Columns#{comment}"
        "QELMX-4248997"}) {
    EXPECT_EQ(hostcalls::LocalizedKeys::Get().Count(key), 1U) << key;
  }
}

TEST_F(HeaderRow, ShowAllColumnsShowsEveryColumnInPositionOrder) {
  const auto tree = MakeTree();
  Choose(*tree, kShowAllColumnsMenuID);
  EXPECT_EQ(GetShownColumns(*tree), kAllColumns);
}

TEST_F(HeaderRow, ShowDefaultColumnsReturnsToTheDefaults) {
  const auto tree = MakeTree();
  Choose(*tree, kShowAllColumnsMenuID);
  Choose(*tree, kColumnClipName);
  Choose(*tree, kShowDefaultColumnsMenuID);
  EXPECT_EQ(GetShownColumns(*tree), kDefaultColumns);
}

TEST_F(HeaderRow, ChoosingACheckedColumnHidesItAndAnUncheckedOneShowsIt) {
  const auto tree = MakeTree();
  Choose(*tree, kColumnIndex);
  EXPECT_EQ(GetShownColumns(*tree), Names(kDefaultColumns.begin() + 1, kDefaultColumns.end()));
  Choose(*tree, kColumnIndex);
  EXPECT_EQ(GetShownColumns(*tree), kDefaultColumns);
}

TEST_F(HeaderRow, AColumnIsToggledFromTheMenusMarkNotFromWhatTheStoreSaysMeanwhile) {
  const auto tree = MakeTree();
  answers.menuAnswer = [] {
    for (auto& column : GetColumnLayoutStore()) column.shown = false;
    return kColumnTrack;
  };
  PressMenuButton(*tree);
  Names expected = kDefaultColumns;
  std::erase(expected, "Track");
  EXPECT_EQ(GetShownColumns(*tree), expected);
}

TEST_F(HeaderRow, AColumnIsToggledFromItsMarkAsTheMenuReportsItAfterClosing) {
  const auto tree = MakeTree();
  hostcalls::menusToggleTheChosenItem = true;
  Choose(*tree, kColumnTrack);
  hostcalls::menusToggleTheChosenItem = false;
  EXPECT_EQ(GetShownColumns(*tree), kDefaultColumns) << "unchecked after closing: to be shown";
}

TEST_F(HeaderRow, ADismissedMenuChangesNothingAndIsHandled) {
  const auto tree = MakeTree();
  tree->GetHeaderRow()->SetColumnWidth(kColumnClipName, 321);
  const hostcalls::Recording recording;
  EXPECT_TRUE(PressMenuButton(*tree));
  EXPECT_EQ(answers.menuCount, 1);
  EXPECT_TRUE(recording.GetCalls({"SetColumnWidth", "RemoveColumn", "AppendColumn"}).empty());
  EXPECT_EQ(recording.Count("UI_DoMouseEvent"), 0U) << "not handed to the base";
  EXPECT_EQ(tree->GetHeaderRow()->GetColumnWidth(kColumnClipName), 321);
}

TEST_F(HeaderRow, ADismissedMenuLeavesToTheStoreWhatHappenedToItMeanwhile) {
  const auto tree = MakeTree();
  answers.menuAnswer = [] {
    GetColumnLayoutStore().front().shown = false;
    return qelui::ui::kMenuDismissed;
  };
  PressMenuButton(*tree);
  const ColumnLayoutList& store = GetColumnLayoutStore();
  EXPECT_FALSE(store.front().shown);
  EXPECT_TRUE(std::ranges::is_sorted(store, std::ranges::less(), &ColumnLayoutEntry::position));
  EXPECT_EQ(GetShownColumns(*tree), kDefaultColumns);
}

TEST_F(HeaderRow, TheMarksAreThoseOfTheStoreNotOfThisHeader) {
  const auto first = MakeTree();
  const auto second = MakeTree();
  Choose(*second, kColumnTrack);
  ASSERT_EQ(GetShownColumns(*first), kDefaultColumns) << "not laid out anew by the other panel";
  Choose(*first, kColumnTrack);
  const auto track =
      std::ranges::find(answers.menuItems, kColumnTrack, &standalone::MenuItem::commandID);
  ASSERT_NE(track, answers.menuItems.end());
  EXPECT_FALSE(track->isChecked) << "though this header still shows it";
  EXPECT_EQ(GetShownColumns(*first), kDefaultColumns) << "so choosing it shows it";
}

TEST_F(HeaderRow, AChoiceIsHandledAndResetsWidthsAndOrderButNotTheStoredOnes) {
  const auto tree = MakeTree();
  tree->GetHeaderRow()->SetColumnWidth(kColumnClipName, 321);
  ASSERT_TRUE(tree->GetHeaderRow()->MoveColumnByUser(3, 1));
  answers.menuAnswer = [] { return kShowAllColumnsMenuID; };
  EXPECT_TRUE(PressMenuButton(*tree));
  EXPECT_EQ(GetShownColumns(*tree), kAllColumns);
  EXPECT_EQ(tree->GetHeaderRow()->GetColumnWidth(kColumnClipName), 200);
  for (const auto& column : GetColumnLayoutStore()) {
    EXPECT_EQ(column.width, column.defaultWidth);
    EXPECT_EQ(column.position, column.defaultPosition);
  }
}

TEST_F(HeaderRow, WithEveryColumnHiddenTheMenuStillOpensAndBringsColumnsBack) {
  const auto tree = MakeTree();
  for (const auto& column : GetColumnCatalogue()) {
    if (column.shown) Choose(*tree, column.id);
  }
  EXPECT_EQ(tree->GetHeaderRow()->GetCountOfColumns(), 1U);
  EXPECT_EQ(tree->GetHeaderRow()->GetColumnWidth(0), 0);
  Choose(*tree, kColumnCodec);
  EXPECT_EQ(GetShownColumns(*tree), Names{"Codec"});
}

TEST_F(HeaderRow, OnlyASinglePressOfTheMenuButtonOpensTheMenu) {
  const auto tree = MakeTree();
  const std::vector<MouseEvent> others{
      {PointerAction::kPress, {}, MouseButton::kContextMenu, 2},
      {PointerAction::kPress, {}, MouseButton::kContextMenu, 0},
      {PointerAction::kRelease, {}, MouseButton::kContextMenu, 1},
      {PointerAction::kMove, {}, MouseButton::kContextMenu, 1},
      {PointerAction::kPress, {}, MouseButton::kPrimary, 1},
      {PointerAction::kPress, {}, MouseButton::kMiddle, 1},
  };
  for (const MouseEvent& event : others) {
    EXPECT_FALSE(tree->GetHeaderRow()->UI_DoMouseEvent(event)) << "the base handles none";
  }
  EXPECT_EQ(answers.menuCount, 0);
}

TEST_F(HeaderRow, TheBaseAnswersEveryOtherEvent) {
  const auto tree = MakeTree();
  const MouseEvent doubleClick(PointerAction::kPress, {}, MouseButton::kContextMenu, 2);
  const hostcalls::Recording recording;
  hostcalls::viewsHandleEveryMouseEvent = true;
  EXPECT_TRUE(tree->GetHeaderRow()->UI_DoMouseEvent(doubleClick));
  hostcalls::viewsHandleEveryMouseEvent = false;
  EXPECT_FALSE(tree->GetHeaderRow()->UI_DoMouseEvent(doubleClick));
  EXPECT_EQ(recording.Count("UI_DoMouseEvent"), 2U);
  EXPECT_EQ(answers.menuCount, 0);
}

TEST_F(HeaderRow, TheMenuButtonIsTheToolkitsFourAndAPressItsActionOne) {
  const auto tree = MakeTree();
  EXPECT_TRUE(tree->GetHeaderRow()->UI_DoMouseEvent(
      MouseEvent(static_cast<PointerAction>(1), {}, static_cast<MouseButton>(4), 1)));
  EXPECT_EQ(answers.menuCount, 1);
}

TEST_F(HeaderRow, AClickOnAColumnReordersNoRows) {
  auto draft = drafts::MakeSequence();
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "Zoo", 0, 10);
  drafts::AddClip(track, "Ant", 10, 20);
  const auto tree = MakeTree();
  tree->SetSequence(AddSequence(std::move(draft)));
  host.Settle();
  tree->GetHeaderRow()->UI_DoMouseEvent(
      MouseEvent(PointerAction::kPress, {50, 5}, MouseButton::kPrimary, 1));
  host.Settle();
  ASSERT_EQ(tree->GetFilteredList().size(), 2U);
  EXPECT_EQ(tree->GetFilteredList()[0].name, "Zoo");
  EXPECT_FALSE(tree->GetHeaderRow()->IsSortIndicatorShown());
}

TEST_F(HeaderRow, OutlivesThePanelThatIsClosedWhileItsMenuIsOpen) {
  auto tree = MakeTree();
  auto* const row = tree->GetHeaderRow().Get();
  answers.menuAnswer = [&] {
    tree.Reset();
    return kShowAllColumnsMenuID;
  };
  EXPECT_TRUE(
      row->UI_DoMouseEvent(MouseEvent(PointerAction::kPress, {}, MouseButton::kContextMenu, 1)));
  EXPECT_TRUE(std::ranges::all_of(GetColumnLayoutStore(), &ColumnLayoutEntry::shown));
}

TEST_F(HeaderRow, VisibilityLivesOnWhenTheTableIsClosedAndAnotherOneOpened) {
  Choose(*MakeTree(), kColumnCodec);
  Names expected = kDefaultColumns;
  expected.emplace_back("Codec");
  EXPECT_EQ(GetShownColumns(*MakeTree()), expected);
}

}  // namespace
}  // namespace Vantrel
