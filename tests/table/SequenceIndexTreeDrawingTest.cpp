#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "data/CellText.h"
#include "host/qelui/Theme.h"
#include "support/HostCalls.h"
#include "table/DrawingFixture.h"
#include "table/DrawingWatch.h"
#include "table/GreenTheme.h"

namespace Vantrel {
namespace {

using qelui::ColorRGBA;
using Drawing = DrawingFixture;

constexpr ColorRGBA kRed{1, 0, 0, 1};
constexpr ColorRGBA kOpaqueBlack{0, 0, 0, 1};

ColorRGBA GetThemeColor() {
  return qelui::skins::utilities::GetDefaultTextColor(*qelui::ui::GetDefaultThemeProvider());
}

// Texts

TEST_F(Drawing, EveryColumnOfEveryRowButTheLabelColourDrawsItsCellText) {
  ShowRichSequence();
  std::set<ColumnID> columnsWithText;
  for (std::size_t position = 0; position < tree->GetFilteredList().size(); ++position) {
    for (ColumnID column = kFirstColumn; column <= kLastColumn; ++column) {
      if (column == kColumnLabelColor) continue;
      const auto expected = CellText(tree->GetFilteredList()[position], column);
      EXPECT_EQ(DrawText(position, column), expected.View()) << position << ", " << column;
      if (!expected.Empty()) columnsWithText.insert(column);
    }
  }
  EXPECT_EQ(columnsWithText.size(), 25U) << "a column that is always empty proves nothing";
}

TEST_F(Drawing, TheNumberIsTheIndexPlusOne) {
  ShowRichSequence();
  EXPECT_EQ(DrawText(0, kColumnIndex), "1");
  EXPECT_EQ(DrawText(4, kColumnIndex), "5");
}

TEST_F(Drawing, TheTrackIsNamedByItsKindAndCountedFromOne) {
  ShowRichSequence();
  EXPECT_EQ(DrawText(0, kColumnTrack), "V1");
  EXPECT_EQ(DrawText(1, kColumnTrack), "A3");
}

TEST_F(Drawing, StartAndEndCountFromTheZeroPointAndTheDurationDoesNot) {
  ShowRichSequence();
  EXPECT_EQ(DrawText(3, kColumnStartTime), "01:00:02:03");
  EXPECT_EQ(DrawText(3, kColumnEndTime), "01:00:02:10");
  EXPECT_EQ(DrawText(3, kColumnDuration), "00:00:00:07");
}

TEST_F(Drawing, RowsThatOutlastTheTablesSequenceKeepTheirZeroPoint) {
  ShowRichSequence();
  tree->SetSequence({});
  EXPECT_EQ(DrawText(3, kColumnStartTime), "01:00:02:03");
}

TEST_F(Drawing, ANewZeroPointShowsAtTheNextDrawing) {
  ShowRichSequence();
  auto draft = MakeRichSequence();
  draft.zeroPoint = drafts::Frame(180000);
  Replace(sequence, std::move(draft));
  EXPECT_EQ(DrawText(3, kColumnStartTime), "02:00:02:03");
}

TEST_F(Drawing, AGapDrawsWhatItKnowsAndNothingInTheColumnsOfClips) {
  ShowRichSequence();
  EXPECT_EQ(DrawText(2, kColumnClipName), "Gap");
  EXPECT_EQ(DrawText(2, kColumnTrack), "V1");
  EXPECT_EQ(DrawText(2, kColumnDuration), "00:00:00:03");
  EXPECT_EQ(DrawText(2, kColumnFrameRate), "25.00 fps");
  for (const ColumnID column :
       {kColumnComment, kColumnDescription, kColumnFileName, kColumnFilePath, kColumnOfflineStatus,
        kColumnMulticamCamera, kColumnTapeName, kColumnUsageCountInSequence, kColumnVideoInfo}) {
    EXPECT_EQ(DrawText(2, column), "") << column;
  }
}

TEST_F(Drawing, ARowIsTheRecordAtItsPositionInTheListThatIsShown) {
  ShowSequence(MakeClipGapClip());
  tree->SetOptions(KeepingGaps());
  {
    // The flag goes between the two lists of one build, so that the shown one lacks the gap.
    int locks = 0;
    const hostcalls::Hook change("Lock", [&] {
      if (++locks == 3) tree->SetOptions({});
    });
    ASSERT_TRUE(RunOneTask());
  }
  {
    const hostcalls::Hook fault("VisitSequence", [] { throw std::runtime_error("the next build"); });
    host.Settle();
  }
  ASSERT_EQ(host.TakeFailures().size(), 1U);
  ASSERT_EQ(tree->GetFullList().size(), 3U);
  ASSERT_EQ(GetShownNames(), (Names{"before", "after"}));
  EXPECT_EQ(DrawText(1, kColumnClipName), "after");
  EXPECT_EQ(DrawText(1, kColumnIndex), "3") << "the number in the full list";
}

TEST_F(Drawing, AnIdentifierThatIsNoColumnDrawsAnEmptyText) {
  ShowRichSequence();
  const auto header = tree->GetHeaderRow();
  for (const std::uint32_t id : {1U, 99999U, 100026U, 0xFFFFFFFFU}) {
    header->AppendColumn(qelcore::UTF8String("Other"), id);
    const hostcalls::Recording recording;
    Draw(0, id);
    EXPECT_EQ(recording.GetCalls({"DrawCellString"}),
              Calls{"DrawCellString(, 12.5, 6.0, Sans, 0, 0, 2)"});
    EXPECT_TRUE(IsNothingDrawn()) << id;
  }
}

TEST_F(Drawing, TheHierarchyColumnDrawsNothing) {
  ShowRichSequence();
  DrawAt(0, 0);
  EXPECT_TRUE(IsNothingDrawn());
}

TEST_F(Drawing, AMovedColumnDrawsAtItsNewPlace) {
  ShowRichSequence();
  DrawAt(0, 3);
  ASSERT_EQ(GetDrawnText(), "Interview");
  ASSERT_TRUE(tree->GetHeaderRow()->MoveColumnByUser(3, 1));
  const std::vector<std::string> expected{"", "Interview", "1"};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    DrawAt(0, i);
    EXPECT_EQ(GetDrawnText(), expected[i]) << i;
  }
  DrawAt(0, 3);
  EXPECT_EQ(drawbot.GetFills().size(), 1U) << "the label colour made room";
}

TEST_F(Drawing, AHiddenColumnLeavesItsPlaceToTheNext) {
  ShowRichSequence();
  for (auto& column : GetColumnLayoutStore()) column.shown = column.id != kColumnLabelColor;
  tree->ReapplyColumnLayout(tree->GetHeaderRow());
  DrawAt(0, 2);
  EXPECT_EQ(GetDrawnText(), "Interview");
}

// Colours

TEST_F(Drawing, OnlyTheTimeThatBordersAShortGapIsRed) {
  ShowSequence(MakeRichSequence());
  ASSERT_EQ(GetShownNames(), (Names{"Interview", "Sound", "Lost", "Title"}));
  const TrackItemDataList& rows = tree->GetFilteredList();
  std::vector<std::pair<std::size_t, ColumnID>> red;
  for (std::size_t position = 0; position < rows.size(); ++position) {
    for (ColumnID column = kFirstColumn; column <= kLastColumn; ++column) {
      Draw(position, column);
      for (const auto& line : drawbot.GetTextLines()) {
        if (line.color == kRed) {
          red.emplace_back(position, column);
        } else {
          EXPECT_EQ(line.color, GetThemeColor()) << position << ", " << column;
        }
      }
    }
  }
  EXPECT_EQ(
      red, (std::vector<std::pair<std::size_t, ColumnID>>{{0, kColumnEndTime}, {2, kColumnStartTime}}));
}

TEST_F(Drawing, AStartFlagReddensTheStartAndAnEndFlagTheEnd) {
  ShowSequence(MakeClipGapClip());
  ASSERT_FALSE(tree->GetFilteredList()[0].startFlagged);
  ASSERT_FALSE(tree->GetFilteredList()[1].endFlagged);
  Draw(0, kColumnEndTime);
  EXPECT_EQ(drawbot.GetTextLines().at(0).color, kRed);
  Draw(0, kColumnStartTime);
  EXPECT_EQ(drawbot.GetTextLines().at(0).color, GetThemeColor());
  Draw(1, kColumnStartTime);
  EXPECT_EQ(drawbot.GetTextLines().at(0).color, kRed);
  Draw(1, kColumnEndTime);
  EXPECT_EQ(drawbot.GetTextLines().at(0).color, GetThemeColor());
}

TEST_F(Drawing, TheTextColourIsThatOfTheThemeAtTheTime) {
  ShowRichSequence();
  DrawingWatch watch;
  watch.theme = std::make_shared<const GreenTheme>();
  Draw(0, kColumnClipName);
  EXPECT_EQ(drawbot.GetTextLines().at(0).color, GreenTheme().GetTextColor());
}

TEST_F(Drawing, TheLabelColourFillsTheWholeCellAndDrawsNoText) {
  ShowRichSequence();
  const hostcalls::Recording recording;
  Draw(0, kColumnLabelColor);
  ASSERT_EQ(drawbot.GetFills().size(), 1U);
  EXPECT_EQ(drawbot.GetFills()[0].area, kCell);
  EXPECT_EQ(drawbot.GetFills()[0].color, (ColorRGBA{1, 0, 0.2F, 0.4F}));
  EXPECT_TRUE(drawbot.GetTextLines().empty());
  EXPECT_EQ(recording.Count("DrawCellString"), 0U);
}

TEST_F(Drawing, AGapsLabelColourIsOpaqueBlack) {
  ShowRichSequence();
  Draw(2, kColumnLabelColor);
  ASSERT_EQ(drawbot.GetFills().size(), 1U);
  EXPECT_EQ(drawbot.GetFills()[0].area, kCell);
  EXPECT_EQ(drawbot.GetFills()[0].color, kOpaqueBlack);
  EXPECT_TRUE(drawbot.GetTextLines().empty());
}

TEST_F(Drawing, NoOtherColumnFillsAnything) {
  ShowRichSequence();
  for (ColumnID column = kFirstColumn; column <= kLastColumn; ++column) {
    Draw(0, column);
    EXPECT_EQ(drawbot.GetFills().size(), column == kColumnLabelColor ? 1U : 0U) << column;
  }
}

}  // namespace
}  // namespace Vantrel
