#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <future>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "host/qelcore/Exceptions.h"
#include "standalone/toolkit/TreeControl.h"
#include "support/Answers.h"
#include "support/HostFaults.h"
#include "support/Process.h"
#include "table/ColumnLayout.h"
#include "table/RefreshFixture.h"

namespace Vantrel {
namespace {

constexpr std::string_view kDefaultHeader =
    "#,Label Color,Clip Name,Track,Start Time,Duration,Effects,Transitions\n";

class Export : public RefreshFixture {
 protected:
  Export() {
    GetColumnLayoutStore().clear();
    tree = MakeTree();
  }

  std::filesystem::path GetFile() const { return folder / "index.csv"; }
  bool ExportTo(const std::filesystem::path& file) {
    return tree->ExportSequenceIndexToCSV(qelcore::UTF8String(file.native()), false);
  }
  /// What an export writes now.
  std::string GetExportedText() {
    EXPECT_TRUE(ExportTo(GetFile()));
    return process::ReadFile(GetFile());
  }
  /// Leaves the header row with these columns only.
  void ShowColumns(const std::vector<ColumnID>& columns) {
    const auto row = tree->GetHeaderRow();
    for (const auto& column : GetColumnCatalogue()) row->RemoveColumn(column.id);
    for (const ColumnID column : columns) row->AppendColumn(GetColumnName(column), column);
  }
  bool IsFolderEmpty() const { return std::filesystem::is_empty(folder.GetPath()); }

  const process::Folder folder;
};

standalone::SequenceDraft MakeDetailedSequence() {
  auto draft = drafts::MakeSequence("Reel 1");
  draft.zeroPoint = drafts::Frame(90000);
  auto& video = drafts::AddTrack(draft);
  auto& interview = drafts::AddClip(video, "Interview, \"take 2\"", 0, 50);
  interview.labelColor = {255, 0, 0, 255};
  drafts::AddEffect(interview, "Blur");
  drafts::AddEffect(interview, "Crop");
  interview.headTransition = standalone::TransitionDraft{"Dissolve", false};
  interview.media.address = "/media/a.mov";
  interview.media.codec = "Codec X";
  interview.sourceClipName = "source";
  interview.comment = "two\nlines";
  interview.description = "only\rreturn";
  interview.tapeName = " tape ";
  interview.videoInfo = "1920 x 1080 (1.0)";
  for (int i = 0; i < 2; ++i) drafts::AddTrack(draft, standalone::TrackKind::kAudio);
  auto& audio = drafts::AddTrack(draft, standalone::TrackKind::kAudio);
  auto& sound = drafts::AddClip(audio, "Größe", 25, 75);
  sound.labelColor = {0, 0, 255, 255};
  sound.media.address = "/media/b.wav";
  return draft;
}

TEST_F(Export, DefaultColumnsAreWrittenByteForByte) {
  ShowSequence(MakeDetailedSequence());
  EXPECT_EQ(GetExportedText(),
            "#,Label Color,Clip Name,Track,Start Time,Duration,Effects,Transitions\n"
            "1,FF0000,\"Interview, \"\"take 2\"\"\",V1,01:00:00:00,00:00:02:00,Blur; Crop; ,"
            "[IN]: Dissolve; \n"
            "2,FF,Gr\xC3\xB6\xC3\x9F"
            "e,A3,01:00:01:00,00:00:02:00,,\n");
}

TEST_F(Export, AllColumnsAreWrittenByteForByte) {
  ShowSequence(MakeDetailedSequence());
  for (auto& column : GetColumnLayoutStore()) column.shown = true;
  ApplyColumnLayout(tree->GetHeaderRow());
  EXPECT_EQ(GetExportedText(),
            "#,Label Color,Clip Name,Track,Start Time,Duration,Effects,Transitions,Offline Status,"
            "Fonts Used,Fonts Missing,End Time,File Name,File Path,Source Clip Name,Proxy Media Path,"
            "Proxy Status,Effects Missing,Multicam Camera,Frame Rate,Codec,Usage Count In Sequence,"
            "Tape Name,Description,Comment,Video Info\n"
            "1,FF0000,\"Interview, \"\"take 2\"\"\",V1,01:00:00:00,00:00:02:00,Blur; Crop; ,"
            "[IN]: Dissolve; ,,,,01:00:02:00,a.mov,/media/a.mov,source,,,,,25.00 fps,Codec X,1, tape ,"
            "only\rreturn,\"two\nlines\",1920 x 1080 (1.0)\n"
            "2,FF,Gr\xC3\xB6\xC3\x9F"
            "e,A3,01:00:01:00,00:00:02:00,,,,,,01:00:03:00,b.wav,/media/b.wav,Gr\xC3\xB6\xC3\x9F"
            "e,,,,,48000 Hz,,1,,,,\n");
}

TEST_F(Export, ALongTableIsWrittenLikeAShortOneRowAfterRow) {
  auto draft = drafts::MakeSequence();
  auto& track = drafts::AddTrack(draft);
  constexpr int kClips = 9001;
  std::string expected = "Clip Name,#,Start Time,Duration\n";
  for (int i = 0; i < kClips; ++i) {
    drafts::AddClip(track, "Shot, " + std::to_string(i), i * 25, i * 25 + 25);
    const auto twoDigits = [](int number) { return std::to_string(100 + number).substr(1); };
    const std::string start =
        twoDigits(i / 3600) + ":" + twoDigits(i / 60 % 60) + ":" + twoDigits(i % 60) + ":00";
    expected +=
        "\"Shot, " + std::to_string(i) + "\"," + std::to_string(i + 1) + "," + start + ",00:00:01:00\n";
  }
  ShowSequence(draft);
  ShowColumns({kColumnClipName, kColumnIndex, kColumnStartTime, kColumnDuration});
  EXPECT_EQ(GetExportedText(), expected);
}

TEST_F(Export, AnEmptyListGivesTheHeaderLineOnly) {
  ShowSequence(drafts::MakeSequence());
  EXPECT_EQ(GetExportedText(), kDefaultHeader);
}

TEST_F(Export, WithoutASequenceTheHeaderLineIsWritten) {
  EXPECT_EQ(GetExportedText(), kDefaultHeader);
}

TEST_F(Export, GapsAreWrittenAsTheTableShowsThem) {
  ShowSequence(MakeClipGapClip());
  tree->SetOptions(KeepingGaps());
  host.Settle();
  ShowColumns({kColumnIndex, kColumnClipName, kColumnLabelColor, kColumnStartTime, kColumnEndTime});
  EXPECT_EQ(GetExportedText(),
            "#,Clip Name,Label Color,Start Time,End Time\n"
            "1,before,0,00:00:00:00,00:00:00:10\n"
            "2,Gap,0,00:00:00:10,00:00:00:13\n"
            "3,after,0,00:00:00:13,00:00:00:20\n");
}

TEST_F(Export, AMovedColumnIsWrittenAtItsNewPlaceAndAHiddenOneNotAtAll) {
  ShowSequence(MakeClips("A", 1));
  for (auto& column : GetColumnLayoutStore()) {
    if (column.id == kColumnTrack || column.id == kColumnLabelColor) column.shown = false;
  }
  ApplyColumnLayout(tree->GetHeaderRow());
  ASSERT_TRUE(tree->GetHeaderRow()->MoveColumnByUser(2, 1));
  EXPECT_EQ(GetExportedText(),
            "Clip Name,#,Start Time,Duration,Effects,Transitions\n"
            "A1,1,00:00:00:00,00:00:00:10,,\n");
}

TEST_F(Export, ScrollingPlaysNoPart) {
  tree->UI_SetBounds({0, 0, 400, 20 + 2 * kRowHeight});
  ShowSequence(MakeClips("A", 6));
  tree->ScrollRowIntoView(tree->GetRow(4), true, true, true);
  ShowColumns({kColumnClipName});
  EXPECT_EQ(GetExportedText(), "Clip Name\nA1\nA2\nA3\nA4\nA5\nA6\n");
}

TEST_F(Export, SelectionPlaysNoPart) {
  ShowSequence(MakeClips("A", 3));
  ShowColumns({kColumnClipName});
  tree->GetControl().Click(1, 0);
  EXPECT_EQ(GetExportedText(), "Clip Name\nA1\nA2\nA3\n");
  EXPECT_EQ(tree->GetSelectedRows().size(), 1U) << "and stays as it is";
}

TEST_F(Export, AColumnWithoutNameInTheHeaderTakesTheCataloguesThenANumber) {
  ShowSequence(MakeClips("A", 1));
  const auto row = tree->GetHeaderRow();
  for (const auto& column : GetColumnCatalogue()) row->RemoveColumn(column.id);
  row->AppendColumn({}, 200000);
  row->AppendColumn({}, kColumnTrack);
  row->AppendColumn(qelcore::UTF8String("Renamed"), kColumnClipName);
  EXPECT_EQ(GetExportedText(), "Column 2,Track,Renamed\n,V1,A1\n");
}

TEST_F(Export, AColumnWithoutAnyNameIsNumberedByItsDisplayPlaceSkippedOnesIncluded) {
  ShowSequence(MakeClips("A", 1));
  ShowColumns({kColumnClipName});
  const auto row = tree->GetHeaderRow();
  row->AppendColumn(qelcore::UTF8String("hidden"), 1);
  row->AppendColumn({}, 200000);
  EXPECT_EQ(GetExportedText(), "Clip Name,Column 4\nA1,\n");
  ASSERT_TRUE(row->MoveColumnByUser(3, 1));
  EXPECT_EQ(GetExportedText(), "Column 2,Clip Name,\n,A1,\n") << "at its new place";
}

TEST_F(Export, AllColumnsMoveAndHideTheirHeadersAndCellsTogether) {
  ShowSequence(MakeDetailedSequence());
  for (auto& column : GetColumnLayoutStore()) column.shown = column.id != kColumnClipName;
  ApplyColumnLayout(tree->GetHeaderRow());
  const auto row = tree->GetHeaderRow();
  const auto place = [&](ColumnID column) {
    return static_cast<std::size_t>(row->GetIndexOfColumn(column));
  };
  ASSERT_TRUE(row->MoveColumnByUser(place(kColumnVideoInfo), 1));
  ASSERT_TRUE(row->MoveColumnByUser(place(kColumnIndex), row->GetCountOfColumns() - 1));
  EXPECT_EQ(GetExportedText(),
            "Video Info,Label Color,Track,Start Time,Duration,Effects,Transitions,Offline Status,"
            "Fonts Used,Fonts Missing,End Time,File Name,File Path,Source Clip Name,Proxy Media Path,"
            "Proxy Status,Effects Missing,Multicam Camera,Frame Rate,Codec,Usage Count In Sequence,"
            "Tape Name,Description,Comment,#\n"
            "1920 x 1080 (1.0),FF0000,V1,01:00:00:00,00:00:02:00,Blur; Crop; ,[IN]: Dissolve; ,,,,"
            "01:00:02:00,a.mov,/media/a.mov,source,,,,,25.00 fps,Codec X,1, tape ,only\rreturn,"
            "\"two\nlines\",1\n"
            ",FF,A3,01:00:01:00,00:00:02:00,,,,,,01:00:03:00,b.wav,/media/b.wav,"
            "Gr\xC3\xB6\xC3\x9F"
            "e,,,,,48000 Hz,,1,,,,2\n");
}

TEST_F(Export, IdentifiersBelowTheCataloguesAreEmptyFieldsButForTheTwoSkipped) {
  ShowSequence(MakeClips("A", 1));
  ShowColumns({});
  const auto row = tree->GetHeaderRow();
  for (const ColumnID column : {1U, 2U, 99999U, 100026U}) {
    row->AppendColumn(qelcore::UTF8String(std::to_string(column)), column);
  }
  EXPECT_EQ(GetExportedText(), "2,99999,100026\n,,\n");
}

TEST_F(Export, TheHierarchyColumnsAreSkippedAndAnUnknownColumnIsAnEmptyField) {
  ShowSequence(MakeClips("A", 1));
  const auto row = tree->GetHeaderRow();
  for (const auto& column : GetColumnCatalogue()) row->RemoveColumn(column.id);
  row->AppendColumn(qelcore::UTF8String("hidden"), 1);
  row->AppendColumn(qelcore::UTF8String("Name"), kColumnClipName);
  row->AppendColumn(qelcore::UTF8String("Other"), 100026);
  row->AppendColumn(qelcore::UTF8String("No."), kColumnIndex);
  EXPECT_EQ(GetExportedText(), "Name,Other,No.\nA1,,1\n");
}

TEST_F(Export, ASkippedColumnInTheLastPlaceLeavesACommaAtTheEndOfEveryLine) {
  ShowSequence(MakeClips("A", 2));
  ShowColumns({kColumnClipName});
  tree->GetHeaderRow()->AppendColumn(qelcore::UTF8String("hidden"), 1);
  EXPECT_EQ(GetExportedText(), "Clip Name,\nA1,\nA2,\n");
}

TEST_F(Export, HeaderNamesAreQuotedLikeCells) {
  ShowColumns({});
  tree->GetHeaderRow()->AppendColumn(qelcore::UTF8String("a \"b\", c"), 200000);
  EXPECT_EQ(GetExportedText(), "\"a \"\"b\"\", c\"\n");
}

TEST_F(Export, OnlyTheHierarchyColumnGivesEmptyLines) {
  ShowSequence(MakeClips("A", 2));
  ShowColumns({});
  EXPECT_EQ(GetExportedText(), "\n\n\n");
}

TEST_F(Export, WithoutAHeaderRowNothingIsWritten) {
  tree->SetHeaderRow({});
  const hostcalls::Recording recording;
  EXPECT_FALSE(ExportTo(GetFile()));
  EXPECT_TRUE(IsFolderEmpty());
  EXPECT_EQ(recording.GetCalls(), (Calls{"Lock(null, 60000)", "Unlock()"}));
}

TEST_F(Export, AHeaderRowWithoutColumnsWritesNothing) {
  hostcalls::headerRowsHaveNoColumns = true;
  const hostcalls::Recording recording;
  EXPECT_FALSE(ExportTo(GetFile()));
  hostcalls::headerRowsHaveNoColumns = false;
  EXPECT_TRUE(IsFolderEmpty());
  EXPECT_EQ(recording.GetCalls(), (Calls{"Lock(null, 60000)", "Unlock()"}));
}

TEST_F(Export, LocksFormatsCreatesWritesOneBlockClosesAndUnlocks) {
  ShowSequence(MakeClips("A", 3));
  ShowColumns({kColumnClipName});
  const hostcalls::Recording recording;
  ASSERT_TRUE(ExportTo(GetFile()));
  EXPECT_EQ(recording.GetCalls({"Lock", "GetZeroPoint", "Create", "WriteBlock", "Close", "Unlock"}),
            (Calls{"Lock(null, 60000)", "GetZeroPoint()", "Create(false)", "WriteBlock(19)", "Close()",
                   "Unlock()"}));
}

TEST_F(Export, ReplacesAnExistingFile) {
  std::ofstream(GetFile()) << "an older and much longer index, line after line after line";
  ShowColumns({kColumnClipName});
  EXPECT_EQ(GetExportedText(), "Clip Name\n");
}

TEST_F(Export, BackslashesInThePathSeparateFolders) {
  ShowColumns({kColumnClipName});
  std::filesystem::create_directory(folder / "sub");
  const std::string path = folder.GetPath().native() + "\\sub\\index.csv";
  ASSERT_TRUE(tree->ExportSequenceIndexToCSV(qelcore::UTF8String(path), true));
  EXPECT_EQ(process::ReadFile(folder / "sub" / "index.csv"), "Clip Name\n");
}

TEST_F(Export, TheFlagPlaysNoPart) {
  ShowSequence(MakeClips("A", 1));
  ASSERT_TRUE(tree->ExportSequenceIndexToCSV(qelcore::UTF8String(GetFile().native()), false));
  const std::string without = process::ReadFile(GetFile());
  ASSERT_TRUE(tree->ExportSequenceIndexToCSV(qelcore::UTF8String(GetFile().native()), true));
  EXPECT_EQ(process::ReadFile(GetFile()), without);
}

TEST_F(Export, AFailureWhileFormattingLeavesNoFileAndFreesTheMutex) {
  ShowSequence(MakeClips("A", 1));
  const hostcalls::Recording recording;
  {
    const hostcalls::Hook fault("GetZeroPoint", [] { throw std::runtime_error("no zero point"); });
    EXPECT_THROW(ExportTo(GetFile()), std::runtime_error);
  }
  EXPECT_TRUE(IsFolderEmpty());
  EXPECT_EQ(recording.Count("Create"), 0U);
  EXPECT_EQ(recording.Count("Lock"), recording.Count("Unlock"));
}

TEST_F(Export, AFailureOfTheFileLayerReachesTheCallerAndFreesTheMutex) {
  ShowSequence(MakeClips("A", 1));
  const hostcalls::Recording recording;
  const Answers answers;
  EXPECT_THROW(ExportTo(folder / "no such folder" / "index.csv"), qelcore::config::file_exception);
  EXPECT_EQ(recording.Count("Lock"), recording.Count("Unlock"));
  EXPECT_EQ(answers.exportCount + answers.menuCount + answers.optionsCount, 0) << "no message either";
  std::thread([this] { tree->RefreshDataListsAndTreeViewAsync(); }).join();
}

TEST_F(Export, AFailureWhileWritingLeavesTheOldFileAndFreesTheMutex) {
  std::ofstream(GetFile()) << "old";
  for (const char* const call : {"Create", "WriteBlock", "Close"}) {
    const hostcalls::Recording recording;
    const hostcalls::Hook fault(call, [] { throw qelcore::config::file_exception("x", "disk full"); });
    EXPECT_THROW(ExportTo(GetFile()), qelcore::config::file_exception) << call;
    EXPECT_EQ(process::ReadFile(GetFile()), "old") << call;
    EXPECT_EQ(recording.Count("Lock"), recording.Count("Unlock")) << call;
  }
}

TEST_F(Export, KeepsNothingBetweenExports) {
  ShowSequence(MakeClips("A", 2));
  const std::string first = GetExportedText();
  EXPECT_EQ(GetExportedText(), first);
}

class ExportOnPool : public testing::Test {
 protected:
  standalone::StandaloneHost host;
  qelcore::Ref<SequenceIndexTree> tree = qelcore::Ref(new SequenceIndexTree({}, 0, 18.0F));
};

TEST_F(ExportOnPool, ABuildThatNeedsTheMutexWaitsUntilTheExportEnds) {
  const auto file = std::filesystem::path(testing::TempDir()) / "sequence-index-waits.csv";
  tree->SetSequence(AddSequence(MakeClips("A", 2)));
  host.GetRuntime().Drain();
  std::promise<void> isVisiting;
  const hostcalls::Hook visit("VisitSequence", [&] { isVisiting.set_value(); });
  const hostcalls::Recording recording;
  const hostcalls::Hook write("WriteBlock", [&] {
    tree->RefreshDataListsAndTreeViewAsync();
    const auto visited = isVisiting.get_future().wait_for(std::chrono::milliseconds(100));
    EXPECT_EQ(visited, std::future_status::timeout) << "the build got the mutex during the export";
  });
  EXPECT_TRUE(tree->ExportSequenceIndexToCSV(qelcore::UTF8String(file.native()), false));
  host.GetRuntime().Drain();
  EXPECT_EQ(recording.Count("VisitSequence"), 1U) << "and runs afterwards";
  std::filesystem::remove(file);
}

}  // namespace
}  // namespace Vantrel
