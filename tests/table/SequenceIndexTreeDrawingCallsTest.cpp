#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

#include "data/CellText.h"
#include "host/qelcore/Exceptions.h"
#include "standalone/runtime/StationRegistry.h"
#include "support/AllocationFault.h"
#include "support/HostCalls.h"
#include "table/DrawingFixture.h"
#include "table/DrawingWatch.h"

namespace Vantrel {
namespace {

using Row = SequenceIndexTree::Row;
using DrawingCalls = DrawingFixture;

// Calls

TEST_F(DrawingCalls, ATextIsPlacedAlikeInEveryColumn) {
  ShowRichSequence();
  for (ColumnID column = kFirstColumn; column <= kLastColumn; ++column) {
    if (column == kColumnLabelColor) continue;
    const std::string text(CellText(tree->GetFilteredList()[0], column).View());
    const hostcalls::Recording recording;
    Draw(0, column);
    EXPECT_EQ(recording.GetCalls({"GetFontName", "DrawCellString"}),
              (Calls{"GetFontName(0)", "DrawCellString(" + text + ", 12.5, 6.0, Sans, 0, 0, 2)"}));
  }
}

TEST_F(DrawingCalls, TheLineStandsInTheMiddleOfACellOfAnyHeight) {
  ShowRichSequence();
  for (const float height : {25.0F, 47.5F, 70.0F}) {
    Draw(0, kColumnClipName, {40, 120, 200, height});
    ASSERT_EQ(drawbot.GetTextLines().size(), 1U);
    EXPECT_EQ(drawbot.GetTextLines()[0].centre, 120 + height / 2);
    EXPECT_EQ(drawbot.GetTextLines()[0].room.height, height);
  }
}

TEST_F(DrawingCalls, TheInsetIsTheToolkits) {
  ShowRichSequence();
  DrawingWatch watch;
  watch.leftInset = 11.0F;
  Draw(0, kColumnClipName);
  EXPECT_EQ(drawbot.GetTextLines().at(0).room, (qelui::Rect{51, 120, 189, 25}));
}

TEST_F(DrawingCalls, AsksTheHostOnceForEachThingItNeeds) {
  ShowRichSequence();
  Row* const row = tree->GetRow(0);
  const auto header = tree->GetHeaderRow();
  for (const ColumnID column : {kColumnStartTime, kColumnClipName, kColumnLabelColor}) {
    const auto index = static_cast<std::size_t>(header->GetIndexOfColumn(column));
    const hostcalls::Recording recording;
    tree->DrawCellOfRow(drawbot, row, index, kCell);
    EXPECT_EQ(recording.GetCalls({"GetColumnAt", "GetRowIndex", "GetDefaultTextColor", "GetZeroPoint"}),
              (Calls{"GetColumnAt(" + std::to_string(index) + ")", "GetRowIndex()",
                     "GetDefaultTextColor()", "GetZeroPoint()"}));
  }
}

TEST_F(DrawingCalls, TakesNoMemoryForWhatARowKeeps) {
  ShowRichSequence();
  for (const ColumnID column : {kColumnClipName, kColumnEffects, kColumnLabelColor}) {
    // Once for the host's own first time, and for the room in the recording.
    Draw(0, column);
    drawbot.Clear();
    Row* const row = tree->GetRow(0);
    const auto index = static_cast<std::size_t>(tree->GetHeaderRow()->GetIndexOfColumn(column));
    const AllocationFault fault(1);
    EXPECT_NO_THROW(tree->DrawCellOfRow(drawbot, row, index, kCell)) << column;
  }
}

// What there may not be

TEST_F(DrawingCalls, ARowBeyondTheListDrawsNothing) {
  ShowRichSequence();
  tree->CreateAndAppendRow(nullptr, true, false);
  for (ColumnID column = kFirstColumn; column <= kLastColumn; ++column) {
    Draw(tree->GetFilteredList().size(), column);
    EXPECT_TRUE(IsNothingDrawn()) << column;
  }
}

TEST_F(DrawingCalls, OldRowsOverAShorterListAreSafeToDraw) {
  ShowSequence(MakeClips("A", 3));
  tree->RefreshDataListsAndTreeViewAsync();
  Replace(sequence, MakeClips("B", 1));
  Names drawn;
  const hostcalls::Hook drawAll("RemoveAllRows", [&] {
    for (std::size_t i = 0; i < 3; ++i) drawn.push_back(DrawText(i, kColumnClipName));
  });
  host.Settle();
  EXPECT_EQ(drawn, (Names{"B1", "", ""}));
}

TEST_F(DrawingCalls, ARowThatIsNotTheTablesRaises) {
  ShowSequence(MakeClips("A", 2));
  const auto other = MakeTree();
  Row* const foreign = other->CreateAndAppendRow(nullptr, true, false);
  Row* const removed = tree->GetRow(1);
  ShowSequence(MakeClips("B", 1));
  for (Row* const row : {foreign, removed, static_cast<Row*>(nullptr)}) {
    EXPECT_THROW(tree->DrawCellOfRow(drawbot, row, 1, kCell), qelcore::config::qel_exception);
  }
  EXPECT_TRUE(IsNothingDrawn());
}

TEST_F(DrawingCalls, ADisplayIndexBeyondTheColumnsRaises) {
  ShowSequence(MakeClips("A", 1));
  EXPECT_THROW(DrawAt(0, tree->GetHeaderRow()->GetCountOfColumns()), qelcore::config::qel_exception);
  EXPECT_TRUE(IsNothingDrawn());
}

TEST_F(DrawingCalls, WithoutAHeaderRowRaisesTheNullPointerErrorWithItsTypeName) {
  ShowSequence(MakeClips("A", 1));
  tree->SetHeaderRow({});
  try {
    DrawAt(0, 1);
    FAIL() << "nothing was raised";
  } catch (const qelcore::config::null_pointer_exception& failure) {
    EXPECT_EQ(failure.GetObject(), "qelui::controls::UI_MultiColumnTreeHeaderRow");
  }
}

TEST_F(DrawingCalls, AnAbsentOptionalPartOfTheModelRaisesNothing) {
  auto draft = drafts::MakeSequence();
  auto& clip = drafts::AddClip(drafts::AddTrack(draft), "", 0, 10);
  clip.media = standalone::MediaDraft();
  clip.sourceClipName.clear();
  clip.frameDuration = qelmediatypes::kUnknownFrameDuration;
  ShowSequence(std::move(draft));
  for (ColumnID column = kFirstColumn; column <= kLastColumn; ++column) {
    EXPECT_NO_THROW(Draw(0, column)) << column;
  }
}

// Life

TEST_F(DrawingCalls, IsRegisteredOnceAfterTheHeaderIsSetUp) {
  const hostcalls::Recording recording;
  const auto other = MakeTree();
  EXPECT_EQ(recording.GetCalls({"SetHeaderRow", "ShowSortIndicator", "SetDrawCellOfRowCallback"}),
            (Calls{"SetHeaderRow()", "ShowSortIndicator(false)", "SetDrawCellOfRowCallback()"}));
}

TEST_F(DrawingCalls, AFunctionThatOutlivesItsTableDrawsNothing) {
  DrawingWatch watch;
  auto closed = MakeTree();
  Row* const row = closed->CreateAndAppendRow(nullptr, true, false);
  ASSERT_NE(watch.drawCell, nullptr);
  closed.Reset();
  (*watch.drawCell)(drawbot, row, 1, kCell);
  EXPECT_TRUE(IsNothingDrawn());
}

TEST_F(DrawingCalls, DoesNotKeepItsTableAlive) {
  DrawingWatch watch;
  auto closed = MakeTree();
  const auto station = closed->GetStationID();
  closed.Reset();
  ASSERT_NE(watch.drawCell, nullptr);
  EXPECT_FALSE(host->GetRuntime().GetStations().IsRegistered(station));
}

/// Does something in the midst of drawing, then leaves the drawing to another drawbot.
class InterruptingDrawbot final : public qelui::Drawbot {
 public:
  InterruptingDrawbot(qelui::Drawbot& other, std::function<void()> interrupt)
      : other(other), interrupt(std::move(interrupt)) {}
  void FillRect(const qelui::Rect& area, const qelui::ColorRGBA& color) override {
    interrupt();
    other.FillRect(area, color);
  }
  void StrokeRect(const qelui::Rect& area, const qelui::ColorRGBA& color, float lineWidth) override {
    interrupt();
    other.StrokeRect(area, color, lineWidth);
  }
  void DrawTextLine(const qelui::TextLine& line) override {
    interrupt();
    other.DrawTextLine(line);
  }

 private:
  qelui::Drawbot& other;
  std::function<void()> interrupt;
};

TEST_F(DrawingCalls, TheTableLivesUntilTheCellIsDrawnEvenIfItIsClosedMeanwhile) {
  ShowSequence(MakeClips("A", 1));
  const auto station = tree->GetStationID();
  auto* const closing = tree.Get();
  bool wasAlive = false;
  InterruptingDrawbot interrupting(drawbot, [&] {
    tree.Reset();
    wasAlive = host->GetRuntime().GetStations().IsRegistered(station);
  });
  const auto index = static_cast<std::size_t>(tree->GetHeaderRow()->GetIndexOfColumn(kColumnClipName));
  closing->DrawCellOfRow(interrupting, closing->GetRow(0), index, kCell);
  EXPECT_TRUE(wasAlive);
  EXPECT_EQ(GetDrawnText(), "A1");
  EXPECT_FALSE(host->GetRuntime().GetStations().IsRegistered(station));
}

TEST_F(DrawingCalls, AFailureOfTheHostReachesTheHost) {
  ShowSequence(MakeClips("A", 1));
  const hostcalls::Hook fault("GetZeroPoint", [] {
    throw qelcore::config::qel_exception(qelcore::config::ExceptionKind::kGeneric, "no zero point", {});
  });
  EXPECT_THROW(DrawAt(0, 1), qelcore::config::qel_exception);
}

}  // namespace
}  // namespace Vantrel
