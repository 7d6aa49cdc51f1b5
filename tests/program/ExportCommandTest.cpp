#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "support/Csv.h"
#include "support/Process.h"

/// The program as a user types it.
namespace {

namespace fs = std::filesystem;
using process::Folder;
using process::Outcome;
using process::ReadFile;
using process::WriteFile;

const std::string kDemo = std::string(SOURCE_FOLDER) + "/samples/demo.otio";
const std::string kFixtures = std::string(SOURCE_FOLDER) + "/tests/program/fixtures/";
/// A timeline that nothing is said about.
const std::string kQuiet = kFixtures + "names.otio";

Outcome RunProgram(std::vector<std::string> arguments, const std::string& input = "/dev/null",
                   const std::string& output = {}) {
  arguments.insert(arguments.begin(), PROGRAM);
  return process::Run(arguments, input, output);
}

Outcome Export(const std::string& file, std::vector<std::string> more = {}) {
  std::vector<std::string> arguments{"export", file, "-o", "-"};
  arguments.insert(arguments.end(), more.begin(), more.end());
  return RunProgram(arguments);
}

/// One line on standard error that names the place and the reason; nothing on standard output.
void ExpectFailure(const Outcome& outcome, const std::string& place, const std::string& reason) {
  EXPECT_EQ(outcome.code, 2) << outcome.errors;
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1) << outcome.errors;
  EXPECT_TRUE(outcome.errors.starts_with("sequence-index: " + place)) << outcome.errors;
  EXPECT_NE(outcome.errors.find(reason), std::string::npos) << outcome.errors;
}

TEST(Program, HelpNamesTheCommandTheOptionsAndTheExitCodes) {
  const Outcome help = RunProgram({"--help"});
  EXPECT_EQ(help.code, 0);
  EXPECT_NE(help.output.find("export"), std::string::npos);
  EXPECT_NE(help.output.find("Exit codes: 0 done; 2"), std::string::npos);
  const Outcome command = RunProgram({"export", "--help"});
  EXPECT_EQ(command.code, 0);
  for (const char* option : {"--output", "--gaps", "--columns"}) {
    EXPECT_NE(command.output.find(option), std::string::npos) << option;
  }
}

TEST(Program, VersionIsOneLine) {
  const Outcome version = RunProgram({"--version"});
  EXPECT_EQ(version.code, 0);
  EXPECT_TRUE(version.output.starts_with("sequence-index "));
  EXPECT_EQ(std::count(version.output.begin(), version.output.end(), '\n'), 1);
}

TEST(Program, ACommandLineThatMakesNoSenseIsOneLineAndExitTwo) {
  ExpectFailure(RunProgram({}), "", "Usage:");
  ExpectFailure(RunProgram({"frobnicate"}), "", "--help");
  ExpectFailure(RunProgram({"export"}), "", "FILE");
  ExpectFailure(RunProgram({"export", kDemo}), "", "--output");
  ExpectFailure(RunProgram({"export", kDemo, "-o", "-", "--columns", "few"}), "", "--columns");
  ExpectFailure(RunProgram({"export", kDemo, "-o", "-", "--frames"}), "", "--frames");
}

TEST(Export, WritesTheEightDefaultColumnsWithoutGaps) {
  const Outcome outcome = Export(kDemo);
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  EXPECT_TRUE(outcome.output.starts_with(
      "#,Label Color,Clip Name,Track,Start Time,Duration,Effects,Transitions\n"));
  EXPECT_EQ(outcome.output.find("\n1,0,Gap"), std::string::npos);
}

TEST(Export, TheDemoIsExportedToTheByte) {
  EXPECT_EQ(Export(kDemo).output, ReadFile(kFixtures + "demo-default.csv"));
  EXPECT_EQ(Export(kDemo, {"--gaps", "--columns", "all"}).output,
            ReadFile(kFixtures + "demo-all-gaps.csv"));
}

TEST(Export, AllColumnsAreTwentySix) {
  const auto rows = csv::Parse(Export(kDemo, {"--columns", "all"}).output);
  ASSERT_FALSE(rows.empty());
  for (const csv::Row& row : rows) EXPECT_EQ(row.size(), 26U);
}

TEST(Export, EveryColumnOfTheDemoHasAText) {
  const auto rows = csv::Parse(Export(kDemo, {"--gaps", "--columns", "all"}).output);
  ASSERT_GT(rows.size(), 20U);
  for (std::size_t column = 0; column < rows.front().size(); ++column) {
    EXPECT_TRUE(std::any_of(rows.begin() + 1, rows.end(), [column](const csv::Row& row) {
      return !row[column].empty();
    })) << rows.front()[column];
  }
}

TEST(Export, GapsAreKeptOnRequestAndNumberedAlong) {
  const auto without = csv::Parse(Export(kDemo).output);
  const auto with = csv::Parse(Export(kDemo, {"--gaps"}).output);
  EXPECT_GT(with.size(), without.size());
  EXPECT_EQ(with.back()[0], std::to_string(with.size() - 1));
  EXPECT_EQ(without.back()[0], std::to_string(without.size() - 1));
}

TEST(Export, ColumnsDefaultIsWhatThePanelShowsByItself) {
  EXPECT_EQ(Export(kDemo, {"--columns", "default"}).output, Export(kDemo).output);
}

TEST(Export, AFileHoldsTheSameBytesAsTheStream) {
  const Folder folder;
  const Outcome outcome = RunProgram({"export", kDemo, "-o", (folder / "out.csv").native()});
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(ReadFile(folder / "out.csv"), Export(kDemo).output);
}

TEST(Export, ANameWithSeveralDotsOrNoneIsKept) {
  const Folder folder;
  for (const char* name : {"cut.final.v2.csv", "plain", ".hidden", "odd name, with \"signs\".csv"}) {
    EXPECT_EQ(RunProgram({"export", kDemo, "-o", (folder / name).native()}).code, 0) << name;
    EXPECT_TRUE(fs::exists(folder / name)) << name;
  }
}

TEST(Export, ReadsTheTimelineFromStandardInput) {
  const Outcome outcome = RunProgram({"export", "-", "-o", "-"}, kDemo);
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  EXPECT_EQ(csv::Parse(outcome.output).size(), csv::Parse(Export(kDemo).output).size());
}

TEST(Export, InputThatCannotBeShownIsOneLineWithFileAndReason) {
  const Folder folder;
  const std::string file = (folder / "cut.otio").native();
  ExpectFailure(Export(file), file, "There is no such file");
  ExpectFailure(Export(folder.GetPath().native()), folder.GetPath().native(), "This is a folder");
  WriteFile(file, "");
  ExpectFailure(Export(file), file, "empty");
  const std::string demo = ReadFile(kDemo);
  WriteFile(file, demo.substr(0, demo.size() / 2));
  ExpectFailure(Export(file), file + ":", "end");
  WriteFile(file, "<?xml version=\"1.0\"?><fcpxml/>");
  ExpectFailure(Export(file), file, "XML");
  WriteFile(file, "{\"hello\": 1}");
  ExpectFailure(Export(file), file, "OTIO_SCHEMA");
}

TEST(Export, TwentyThousandNestedStacksEndInOneLine) {
  const Folder folder;
  std::string text;
  for (int i = 0; i < 20000; ++i) text += "{\"OTIO_SCHEMA\":\"Stack.1\",\"children\":[";
  for (int i = 0; i < 20000; ++i) text += "]}";
  const std::string file = (folder / "deep.otio").native();
  WriteFile(file, text);
  ExpectFailure(Export(file), file, "256");
}

TEST(Export, AnOutputThatCannotBeWrittenIsOneLineAndLeavesNothing) {
  const Folder folder;
  ExpectFailure(RunProgram({"export", kQuiet, "-o", (folder / "no/such/out.csv").native()}), "",
                "no/such");
  ExpectFailure(RunProgram({"export", kQuiet, "-o", folder.GetPath().native()}),
                folder.GetPath().native(), "This is a folder");
  ExpectFailure(RunProgram({"export", kQuiet, "-o", (folder / "a\\b.csv").native()}), "", "\\");
  ExpectFailure(RunProgram({"export", kQuiet, "-o", ""}), "", "empty");
  EXPECT_TRUE(fs::is_empty(folder.GetPath()));
}

TEST(Export, AFolderWithABackslashInItsNameIsRefusedToo) {
  const Folder folder;
  const fs::path odd = folder / "odd\\folder";
  fs::create_directory(odd);
  const fs::path before = fs::current_path();
  fs::current_path(odd);
  ExpectFailure(RunProgram({"export", kQuiet, "-o", "out.csv"}), "", "\\");
  fs::current_path(before);
  EXPECT_TRUE(fs::is_empty(odd));
}

TEST(Export, TheTimelineItselfIsNeverOverwritten) {
  const Folder folder;
  const std::string file = (folder / "cut.otio").native();
  fs::copy_file(kDemo, file);
  ExpectFailure(RunProgram({"export", file, "-o", file}), file, "timeline itself");
  ExpectFailure(RunProgram({"export", "-", "-o", file}, file), file, "timeline itself");
  EXPECT_EQ(ReadFile(file), ReadFile(kDemo));
}

TEST(Export, TheTimelineWithinABundleIsNeverOverwrittenEither) {
  const Folder folder;
  fs::create_directory(folder / "cut.otiod");
  const std::string bundle = (folder / "cut.otiod").native();
  const std::string content = bundle + "/content.otio";
  fs::copy_file(kQuiet, content);
  const Outcome outcome = RunProgram({"export", bundle, "-o", content});
  EXPECT_EQ(outcome.code, 2);
  EXPECT_EQ(outcome.errors, "sequence-index: " + content +
                                ": This is the timeline itself; give another file to write.\n");
  EXPECT_EQ(ReadFile(content), ReadFile(kQuiet));
  EXPECT_EQ(RunProgram({"export", bundle, "-o", bundle + "/index.csv"}).code, 0);
}

TEST(Export, AnOldFileStaysWhenTheInputIsBroken) {
  const Folder folder;
  WriteFile(folder / "out.csv", "old");
  WriteFile(folder / "cut.otio", "{");
  RunProgram({"export", (folder / "cut.otio").native(), "-o", (folder / "out.csv").native()});
  EXPECT_EQ(ReadFile(folder / "out.csv"), "old");
}

TEST(Export, AFullDeviceIsOneLine) {
  ExpectFailure(RunProgram({"export", kQuiet, "-o", "-"}, "/dev/null", "/dev/full"), "standard output",
                "No space");
}

/// A timeline of as many clips, without anything that need not be there.
std::string MakeTimeline(int clips) {
  const std::string clip =
      R"({"OTIO_SCHEMA":"Clip.1","name":"A","source_range":{"OTIO_SCHEMA":"TimeRange.1",)"
      R"("start_time":{"OTIO_SCHEMA":"RationalTime.1","rate":25,"value":0},)"
      R"("duration":{"OTIO_SCHEMA":"RationalTime.1","rate":25,"value":10}}})";
  std::string text = R"({"OTIO_SCHEMA":"Track.1","kind":"Video","children":[)" + clip;
  for (int i = 1; i < clips; ++i) text += "," + clip;
  return text + "]}";
}

TEST(Export, NothingStaysInTheTemporaryFolderWhenTheReaderClosesThePipeEarly) {
  constexpr int kMoreThanAPipeHolds = 4000;
  const Folder folder;
  const Folder temporary;
  WriteFile(folder / "long.otio", MakeTimeline(kMoreThanAPipeHolds));
  const std::string command = "TMPDIR='" + temporary.GetPath().native() + "' '" PROGRAM "' export '" +
                              (folder / "long.otio").native() + "' -o - | head -c 1";
  EXPECT_EQ(process::Run({"/bin/sh", "-c", command}).output, "#");
  EXPECT_TRUE(fs::is_empty(temporary.GetPath()));
}

TEST(Export, APipeWithoutANameIsWritten) {
  const Outcome outcome =
      process::Run({"/bin/sh", "-c", "'" PROGRAM "' export '" + kDemo + "' -o /dev/stdout | cat"});
  EXPECT_EQ(outcome.output, ReadFile(kFixtures + "demo-default.csv")) << outcome.errors;
}

TEST(Export, WithoutATemporaryFolderTheStreamIsOneLine) {
  const std::string command = "TMPDIR=/no/such '" PROGRAM "' export '" + kQuiet + "' -o -";
  ExpectFailure(process::Run({"/bin/sh", "-c", command}), "", "temporary folder");
}

TEST(Export, NothingStaysInTheTemporaryFolder) {
  const Folder folder;
  setenv("TMPDIR", folder.GetPath().c_str(), 1);
  const Outcome outcome = Export(kDemo);
  unsetenv("TMPDIR");
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  EXPECT_TRUE(fs::is_empty(folder.GetPath()));
}

}  // namespace
