#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "standalone/app/DisplayText.h"
#include "support/Process.h"
#include "support/Terminal.h"

/// The program as a user types it, showing tables.
namespace {

using process::Folder;
using process::Outcome;
using process::WriteFile;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

const std::string kDemo = std::string(SOURCE_FOLDER) + "/samples/demo.otio";
const std::string kFixtures = std::string(SOURCE_FOLDER) + "/tests/program/fixtures/";
const std::string kNames = kFixtures + "names.otio";
const std::string kReels = kFixtures + "reels.otio";

std::vector<std::string> MakeCommand(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), PROGRAM);
  return arguments;
}

Outcome RunProgram(const std::vector<std::string>& arguments, const std::string& input = "/dev/null",
                   const std::string& output = {}) {
  return process::Run(MakeCommand(arguments), input, output);
}

std::vector<std::string> GetLines(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

void ExpectOneLine(const Outcome& outcome, const std::string& reason) {
  EXPECT_EQ(outcome.code, 2);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(GetLines(outcome.errors).size(), 1U) << outcome.errors;
  EXPECT_THAT(outcome.errors, HasSubstr(reason));
}

TEST(Table, ShowsTheClipsInAlignedColumns) {
  const Outcome outcome = RunProgram({"table", kNames});
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(
      outcome.output,
      "#  Label Color  Clip Name            Track  Start Time   Duration     Effects  Transitions\n"
      "1  #8A8A8A      Plain                V1     01:00:00:00  00:00:02:00\n"
      "2  #8A8A8A      渡し船の夜明け       V1     01:00:02:02  00:00:02:00\n"
      "3  #8A8A8A      👩‍🚀 at the pier       V1     01:00:04:02  00:00:02:00\n"
      "4  #8A8A8A      Cafe\u0301 de\u0301ja\u0300 vu         V1     01:00:06:02  00:00:02:00\n"
      "5  #8A8A8A      שלום                 V1     01:00:08:02  00:00:02:00\n"
      "6  #8A8A8A      Two lines␉and a tab  V1     01:00:10:02  00:00:02:00\n"
      "7  #8A8A8A      �evil�␛[31m          V1     01:00:12:02  00:00:02:00\n"
      "8  #8A8A8A      👍🏽🇩🇪❤️1️⃣             V1     01:00:14:02  00:00:02:00\n"
      "9  #8A8A8A      ﾊﾞﾅﾅ                 V1     01:00:16:02  00:00:02:00\n");
}

TEST(Table, FitsTheWidthThatIsGiven) {
  const Outcome outcome =
      RunProgram({"table", kNames, "--gaps", "--width", "30", "--columns", "#,Clip Name,Start Time"});
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  EXPECT_EQ(outcome.output,
            " #  Clip Name      Start Time\n"
            " 1  Plain          01:00:00:00\n"
            " 2  Gap            01:00:02:00\n"
            " 3  渡し船の夜明…  01:00:02:02\n"
            " 4  👩‍🚀 at the pi…  01:00:04:02\n"
            " 5  Cafe\u0301 de\u0301ja\u0300 vu   01:00:06:02\n"
            " 6  שלום           01:00:08:02\n"
            " 7  Two lines␉an…  01:00:10:02\n"
            " 8  �evil�␛[31m    01:00:12:02\n"
            " 9  👍🏽🇩🇪❤️1️⃣       01:00:14:02\n"
            "10  ﾊﾞﾅﾅ           01:00:16:02\n");
}

TEST(Table, ColumnsThatDoNotFitAreCountedInOneLine) {
  const Outcome outcome = RunProgram({"table", kNames, "--columns", "all", "--width", "80"});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(outcome.errors,
            "sequence-index: 17 of 26 columns do not fit into 80; give --width or fewer --columns\n");
}

TEST(Table, NothingIsCutInAPipe) {
  const Outcome outcome = RunProgram({"table", kDemo, "--columns", "all", "--gaps"});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_THAT(outcome.output, Not(HasSubstr("…")));
  EXPECT_THAT(outcome.output, Not(HasSubstr("\033")));
  EXPECT_THAT(outcome.output, Not(HasSubstr(" \n")));
}

TEST(Table, TheColumnsListedAreShownInTheirOrder) {
  const Outcome outcome = RunProgram({"table", kNames, "--columns", " duration, 100000 ,TRACK"});
  EXPECT_EQ(GetLines(outcome.output)[0], "Duration     #  Track") << outcome.errors;
  EXPECT_EQ(GetLines(outcome.output)[1], "00:00:02:00  1  V1");
}

TEST(Table, MostColumnsCanBeListedToo) {
  const Outcome all = RunProgram({"export", kDemo, "--columns", "all", "-o", "-"});
  std::string names = GetLines(all.output)[0];
  std::string reversed;
  std::istringstream stream(names);
  for (std::string name; std::getline(stream, name, ',');) {
    if (name == "Codec") continue;
    reversed = name + (reversed.empty() ? "" : ",") + reversed;
  }
  const Outcome outcome = RunProgram({"export", kDemo, "--columns", reversed, "-o", "-"});
  EXPECT_EQ(GetLines(outcome.output)[0], reversed) << outcome.errors;
}

TEST(Table, BadColumnsAreRefusedBeforeAFileIsRead) {
  const Folder folder;
  const std::string output = (folder / "out.csv").native();
  ExpectOneLine(RunProgram({"table", "no-such.otio", "--columns", "few"}), "no column \"few\"");
  ExpectOneLine(RunProgram({"table", kDemo, "--columns", "#,#"}), "named twice");
  ExpectOneLine(RunProgram({"table", kDemo, kDemo, "--columns", "few"}), "no column \"few\"");
  ExpectOneLine(RunProgram({"export", "no-such.otio", "-o", output, "--columns", "few"}), "few");
  EXPECT_TRUE(std::filesystem::is_empty(folder.GetPath()));
}

TEST(Table, AFileWithoutCommandIsShownTheSameWay) {
  EXPECT_EQ(RunProgram({kNames}).output, RunProgram({"table", kNames}).output);
  EXPECT_EQ(RunProgram({"--gaps", kNames}).output, RunProgram({"table", kNames, "--gaps"}).output);
}

TEST(Table, AWordThatIsNeitherFileNorCommandIsOneLine) {
  const std::string reason = "There is no such file or command; see sequence-index --help";
  ExpectOneLine(RunProgram({"frobnicate"}), "frobnicate: " + reason);
  ExpectOneLine(RunProgram({"exprt", kDemo, "-o", "-"}), "exprt: " + reason);
  ExpectOneLine(RunProgram({"table", "frobnicate"}), "frobnicate: There is no such file;");
}

TEST(Table, NothingAtAllIsAnsweredWithTheUsage) {
  ExpectOneLine(RunProgram({}), "Usage: sequence-index [COMMAND] FILE...");
}

TEST(Table, ReadsTheTimelineFromStandardInput) {
  EXPECT_EQ(RunProgram({"table", "-"}, kNames).output, RunProgram({"table", kNames}).output);
  EXPECT_EQ(RunProgram({"-"}, kNames).output, RunProgram({"table", kNames}).output);
}

TEST(Table, SeveralFilesStandEachUnderItsName) {
  const std::string table = RunProgram({"table", kNames}).output;
  const Outcome outcome = RunProgram({"table", kNames, kNames});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(outcome.output, kNames + ":\n" + table + "\n" + kNames + ":\n" + table);
}

TEST(Table, AFileThatFailsDoesNotKeepTheOthersBack) {
  const std::string table = RunProgram({"table", kNames}).output;
  for (const std::vector<std::string>& command :
       {std::vector<std::string>{"table"}, std::vector<std::string>()}) {
    std::vector<std::string> arguments = command;
    arguments.insert(arguments.end(), {"no-such.otio", kNames});
    const Outcome outcome = RunProgram(arguments);
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.output, kNames + ":\n" + table);
    EXPECT_EQ(GetLines(outcome.errors).size(), 1U) << outcome.errors;
    EXPECT_THAT(outcome.errors, StartsWith("sequence-index: no-such.otio: There is no such file"));
  }
}

TEST(Table, TheNameOfAFileCannotDriveTheTerminal) {
  const Folder folder;
  const std::string odd = (folder / "\033[31m.otio").native();
  std::filesystem::copy_file(kNames, odd);
  const Outcome outcome = RunProgram({"table", odd, odd});
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  EXPECT_THAT(outcome.output, HasSubstr("␛[31m.otio:\n"));
  EXPECT_THAT(outcome.output, Not(HasSubstr("\033")));
}

TEST(Table, OfSeveralSequencesTheFirstIsShownWithAWordAboutTheOthers) {
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"table", kReels}, {"export", kReels, "-o", "-"}}) {
    const Outcome outcome = RunProgram(arguments);
    EXPECT_EQ(outcome.code, 0);
    EXPECT_THAT(outcome.output, HasSubstr("One"));
    EXPECT_EQ(outcome.errors, "sequence-index: " + kReels +
                                  ": Showing \"Reel 1\", the first of 5 sequences; --sequence NAME or "
                                  "--sequence #N shows another one.\n");
  }
}

TEST(Table, ASequenceIsChosenByNameOrPosition) {
  for (const char* wish : {"Reel 2", "#2"}) {
    const Outcome outcome = RunProgram({"table", kReels, "--sequence", wish, "--columns", "Clip Name"});
    EXPECT_EQ(outcome.output, "Clip Name\nTwo\n") << outcome.errors;
    EXPECT_EQ(outcome.errors, "");
  }
  EXPECT_THAT(RunProgram({"export", kReels, "--sequence", "#4", "-o", "-"}).output,
              HasSubstr(",Four,"));
}

TEST(Table, ASequenceThatIsNotThereOrNotAloneIsOneLineWithTheFile) {
  ExpectOneLine(RunProgram({"table", kReels, "--sequence", "Reel 3"}),
                kReels + ": There is no sequence \"Reel 3\"; there is #1 \"Reel 1\", #2 ");
  ExpectOneLine(RunProgram({"table", kReels, "--sequence", "Dup"}), "#3 \"Dup\", #4 \"Dup\"");
  ExpectOneLine(RunProgram({"export", kReels, "--sequence", "#1", "-o", "-"}), "#5 \"#1\"");
}

TEST(Table, TimesAreWrittenAsAsked) {
  const Outcome outcome =
      RunProgram({"table", kNames, "--time-display", "frames", "--columns", "Start Time"});
  EXPECT_EQ(GetLines(outcome.output)[1], "90000") << outcome.errors;
  const Outcome exported = RunProgram({"export", kReels, "--time-display", "Frames", "--columns",
                                       "Duration", "--sequence", "#5", "-o", "-"});
  EXPECT_EQ(exported.output, "Duration\n25\n") << exported.errors;
}

/// A timeline of one clip with a marker, and with the given duration.
std::string MakeMarkedTimeline(int duration) {
  return R"({"OTIO_SCHEMA":"Timeline.1","name":"M","tracks":{"OTIO_SCHEMA":"Stack.1","children":[)"
         R"({"OTIO_SCHEMA":"Track.1","kind":"Video","children":[)"
         R"({"OTIO_SCHEMA":"Clip.1","name":"A","markers":[{"OTIO_SCHEMA":"Marker.2","name":"m"}],)"
         R"("source_range":{"OTIO_SCHEMA":"TimeRange.1",)"
         R"("start_time":{"OTIO_SCHEMA":"RationalTime.1","rate":25,"value":0},)"
         R"("duration":{"OTIO_SCHEMA":"RationalTime.1","rate":25,"value":)" +
         std::to_string(duration) + "}}}]}]}}";
}

TEST(Table, WhatCannotBeShownIsListedOnRequestAfterTheNotes) {
  const Folder folder;
  const std::string file = (folder / "cut.otio").native();
  WriteFile(file, MakeMarkedTimeline(-5));
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"table", file}, {"export", file, "-o", "-"}}) {
    const Outcome quiet = RunProgram(arguments);
    EXPECT_EQ(quiet.code, 0);
    EXPECT_THAT(quiet.errors, StartsWith("sequence-index: " + file + ":1: "));
    EXPECT_THAT(quiet.errors, Not(HasSubstr("Not shown")));
    std::vector<std::string> reporting = arguments;
    reporting.emplace_back("--report");
    const Outcome outcome = RunProgram(reporting);
    EXPECT_EQ(outcome.output, quiet.output);
    ASSERT_THAT(outcome.errors, StartsWith(quiet.errors));
    const std::string report = outcome.errors.substr(quiet.errors.size());
    EXPECT_THAT(report, StartsWith("sequence-index: " + file + ":1: "));
    EXPECT_THAT(report, HasSubstr("Not shown"));
  }
}

TEST(Table, AFileWithoutClipsIsItsHeader) {
  const Folder folder;
  const std::string file = (folder / "empty.otio").native();
  WriteFile(file,
            R"({"OTIO_SCHEMA":"Timeline.1","name":"E","tracks":{"OTIO_SCHEMA":"Stack.1","children":[)"
            R"({"OTIO_SCHEMA":"Track.1","kind":"Video","children":[]}]}})");
  const Outcome outcome = RunProgram({"table", file, "--columns", "#,Track"});
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  EXPECT_EQ(outcome.output, "#  Track\n");
}

TEST(Table, AFullDeviceIsOneLine) {
  ExpectOneLine(RunProgram({"table", kNames}, "/dev/null", "/dev/full"), "standard output: No space");
}

TEST(Table, ALongOneComesWhole) {
  constexpr int kClips = 3000;
  const std::string clip =
      R"({"OTIO_SCHEMA":"Clip.1","name":"A","source_range":{"OTIO_SCHEMA":"TimeRange.1",)"
      R"("start_time":{"OTIO_SCHEMA":"RationalTime.1","rate":25,"value":0},)"
      R"("duration":{"OTIO_SCHEMA":"RationalTime.1","rate":25,"value":10}}})";
  std::string text = R"({"OTIO_SCHEMA":"Track.1","kind":"Video","children":[)" + clip;
  for (int i = 1; i < kClips; ++i) text += "," + clip;
  const Folder folder;
  WriteFile(folder / "long.otio", text + "]}");
  const auto lines = GetLines(RunProgram({"table", (folder / "long.otio").native()}).output);
  ASSERT_EQ(lines.size(), kClips + 1U);
  for (int row = 1; row <= kClips; ++row) {
    const std::string number = std::to_string(row);
    ASSERT_THAT(lines[static_cast<std::size_t>(row)],
                StartsWith(std::string(4 - number.size(), ' ') + number + "  "));
  }
}

Outcome ShowOnTerminal(const std::vector<std::string>& arguments, unsigned short columns,
                       const std::vector<std::string>& variables = {"TERM=xterm"}) {
  return terminal::Run(MakeCommand(arguments), columns, variables);
}

const std::vector<std::string> kShortTable{"table", kNames, "--columns",
                                           "#,Label Color,Clip Name,Start Time,End Time"};

TEST(TableOnATerminal, HasABoldHeaderColouredSwatchesAndRedTimesAtShortGaps) {
  const Outcome outcome = ShowOnTerminal(kShortTable, 80);
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  const auto lines = GetLines(outcome.output);
  ASSERT_EQ(lines.size(), 10U);
  EXPECT_EQ(lines[0],
            "\033[1m#\033[0m      \033[1mClip Name\033[0m            \033[1mStart Time\033[0m   "
            "\033[1mEnd Time\033[0m");
  EXPECT_EQ(lines[1],
            "1  \033[48;5;245m  \033[0m  Plain                01:00:00:00  \033[31m01:00:02:00\033[0m");
  EXPECT_EQ(lines[2],
            "2  \033[48;5;245m  \033[0m  渡し船の夜明け       \033[31m01:00:02:02\033[0m  01:00:04:02");
}

TEST(TableOnATerminal, HasAllColoursWhereTheTerminalHas) {
  for (const char* depth : {"COLORTERM=truecolor", "COLORTERM=24bit"}) {
    const Outcome outcome = ShowOnTerminal(kShortTable, 80, {"TERM=xterm", depth});
    EXPECT_THAT(outcome.output, HasSubstr("\033[48;2;138;138;138m  \033[0m")) << depth;
  }
}

TEST(TableOnATerminal, HasNoColoursWhereTheyAreNotWanted) {
  const std::string plain = RunProgram(kShortTable).output;
  for (const std::vector<std::string>& variables :
       {std::vector<std::string>{"TERM=dumb"}, {"TERM=xterm", "NO_COLOR=1"}}) {
    EXPECT_EQ(ShowOnTerminal(kShortTable, 80, variables).output, plain);
  }
  EXPECT_THAT(ShowOnTerminal(kShortTable, 80, {"TERM=xterm", "NO_COLOR="}).output, HasSubstr("\033["));
}

std::size_t GetWidestLine(const std::string& text) {
  std::size_t widest = 0;
  for (const std::string& line : GetLines(text)) {
    widest = std::max(widest, standalone::CountColumns(line));
  }
  return widest;
}

TEST(TableOnATerminal, IsAsWideAsTheTerminal) {
  for (const unsigned short columns : {40, 60, 80, 100}) {
    const Outcome outcome = ShowOnTerminal({kDemo}, columns, {"TERM=dumb"});
    EXPECT_EQ(GetWidestLine(outcome.output), columns);
  }
}

TEST(TableOnATerminal, IsAsWideAsTheVariableSaysWhereTheTerminalDoesNotKnow) {
  EXPECT_EQ(GetWidestLine(ShowOnTerminal({kDemo}, 0, {"TERM=dumb", "COLUMNS=66"}).output), 66U);
  EXPECT_EQ(GetWidestLine(ShowOnTerminal({kDemo}, 0, {"TERM=dumb", "COLUMNS=wide"}).output), 80U);
  EXPECT_EQ(GetWidestLine(ShowOnTerminal({kDemo}, 0, {"TERM=dumb"}).output), 80U);
}

TEST(TableOnATerminal, AWidthThatIsGivenCountsMore) {
  const Outcome outcome = ShowOnTerminal({kDemo, "--width", "70"}, 40, {"TERM=dumb"});
  EXPECT_EQ(GetWidestLine(outcome.output), 70U);
}

}  // namespace
