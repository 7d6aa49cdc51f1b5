#include "standalone/app/PanelTable.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <stdexcept>
#include <utility>

#include "standalone/app/ColumnMenu.h"
#include "standalone/app/DocumentReading.h"
#include "standalone/app/IndexSession.h"
#include "support/Csv.h"
#include "support/Drafts.h"
#include "support/Process.h"

namespace standalone {
namespace {

const std::string kDemo = std::string(SOURCE_FOLDER) + "/samples/demo.otio";

/// A cell in the words of the export.
std::string GetField(const TableCell& cell) {
  if (!cell.swatch) return std::string(cell.text);
  char text[16];
  std::snprintf(text, sizeof text, "%X",
                cell.swatch->red * 65536U + cell.swatch->green * 256U + cell.swatch->blue);
  return text;
}

TEST(PanelTable, ShowsWhatTheExportWrites) {
  const process::Folder folder;
  IndexSession session;
  ShowColumns(session, {ColumnChoice::Kind::kAll, {}});
  MZ::SequenceIndex::Options options;
  options.isKeepingGaps = true;
  session.ChooseRows(options);
  session.ShowDocument(DocumentReader(ReadingOptions()).Read(kDemo));
  session.Export(folder / "demo.csv");
  const auto rows = csv::Parse(process::ReadFile(folder / "demo.csv"));
  PanelTable table(session.GetTree());
  ASSERT_EQ(table.CountRows() + 1, rows.size());
  ASSERT_EQ(table.GetColumns().size(), 26U);
  for (std::size_t column = 0; column < 26; ++column) {
    EXPECT_EQ(table.GetColumns()[column].title, rows[0][column]);
    for (std::size_t row = 0; row < table.CountRows(); ++row) {
      EXPECT_EQ(GetField(table.ReadCell(row, column)), rows[row + 1][column]);
    }
  }
}

TEST(PanelTable, NumbersAndTimesAreToldFromTexts) {
  IndexSession session;
  ShowColumns(session, {ColumnChoice::Kind::kAll, {}});
  const PanelTable table(session.GetTree());
  for (const TableColumn& column : table.GetColumns()) {
    const std::string& title = column.title;
    const bool isTime = title == "Start Time" || title == "End Time" || title == "Duration";
    EXPECT_EQ(column.isRightAligned, title == "#" || title == "Usage Count In Sequence") << title;
    EXPECT_EQ(column.isSwatch, title == "Label Color") << title;
    EXPECT_EQ(column.isNarrowedLast, title == "#" || title == "Track" || isTime) << title;
  }
}

TEST(PanelTable, TimesAtAShortGapAskForAttention) {
  SequenceDraft draft = drafts::MakeSequence("Cut");
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "A", 0, 50);
  drafts::AddClip(track, "B", 52, 100);
  IndexSession session;
  ShowColumns(session, {ColumnChoice::Kind::kListed, {"Clip Name", "Start Time", "End Time"}});
  session.ShowDocument(drafts::MakeDocument(std::move(draft)));
  PanelTable table(session.GetTree());
  ASSERT_EQ(table.CountRows(), 2U);
  const bool expected[2][3] = {{false, false, true}, {false, true, false}};
  for (std::size_t row = 0; row < 2; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      EXPECT_EQ(table.ReadCell(row, column).isAlert, expected[row][column]) << row << " " << column;
    }
  }
}

TEST(PanelTable, AFailureOfThePanelLeavesAsItsSentence) {
  IndexSession session;
  session.ShowDocument(drafts::MakeDocument(drafts::MakeOneClip("A")));
  session.GetTree().SetDrawCellOfRowCallback(
      std::make_shared<const qelui::controls::UI_MultiColumnTree::DrawCellFunction>(
          [](auto&&...) { throw std::logic_error("no ink"); }));
  PanelTable table(session.GetTree());
  try {
    table.ReadCell(0, 0);
    FAIL() << "the failure passed";
  } catch (const std::runtime_error& failure) {
    EXPECT_STREQ(failure.what(), "no ink");
  }
}

}  // namespace
}  // namespace standalone
