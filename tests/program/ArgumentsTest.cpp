#include "standalone/app/Arguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "standalone/app/CommandError.h"

namespace standalone {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

Arguments Parse(std::vector<const char*> words) {
  words.insert(words.begin(), "sequence-index");
  return ParseArguments(static_cast<int>(words.size()), words.data());
}

TableArguments ParseTable(const std::vector<const char*>& words) {
  return std::get<TableArguments>(Parse(words));
}

std::string GetErrorLine(const std::vector<const char*>& words) {
  try {
    Parse(words);
  } catch (const CommandError& error) {
    return error.GetLine();
  }
  return "no error";
}

TEST(Arguments, AFileAloneIsShownAsATable) {
  const TableArguments arguments = ParseTable({"cut.otio"});
  EXPECT_THAT(arguments.files, ElementsAre("cut.otio"));
  EXPECT_TRUE(arguments.isCommandImplied);
  EXPECT_FALSE(ParseTable({"table", "cut.otio"}).isCommandImplied);
}

TEST(Arguments, WithoutCommandTheOptionsAreThoseOfTheTable) {
  EXPECT_TRUE(ParseTable({"--gaps", "cut.otio"}).options.isKeepingGaps);
  EXPECT_EQ(ParseTable({"cut.otio", "--width", "70"}).width, 70U);
  EXPECT_THAT(ParseTable({"-", "b.otio"}).files, ElementsAre("-", "b.otio"));
}

TEST(Arguments, FilesMayHaveTheNamesOfCommandsOrOptions) {
  EXPECT_THAT(ParseTable({"table", "table", "export"}).files, ElementsAre("table", "export"));
  EXPECT_THAT(ParseTable({"--", "--gaps"}).files, ElementsAre("--gaps"));
  EXPECT_THAT(ParseTable({"[a,b].otio"}).files, ElementsAre("[a,b].otio"));
}

TEST(Arguments, BothCommandsTakeTheSameOptions) {
  const std::vector<const char*> options{"--gaps", "--columns", "Track,#",        "--sequence",
                                         "#2",     "--report",  "--time-display", "FEET-frames-16mm"};
  std::vector<const char*> table{"table", "a.otio"};
  std::vector<const char*> exported{"export", "a.otio", "-o", "a.csv"};
  table.insert(table.end(), options.begin(), options.end());
  exported.insert(exported.end(), options.begin(), options.end());
  for (const IndexOptions& read :
       {ParseTable(table).options, std::get<ExportArguments>(Parse(exported)).options}) {
    EXPECT_TRUE(read.isKeepingGaps);
    EXPECT_THAT(read.columns.names, ElementsAre("Track", "#"));
    EXPECT_EQ(read.sequence, "#2");
    EXPECT_EQ(read.timeFormat, TimeFormat::kFeetAndFrames16mm);
    EXPECT_TRUE(read.isReporting);
  }
}

TEST(Arguments, UnlessAskedEverythingIsAsThePanelAndTheFileHaveIt) {
  const IndexOptions options = ParseTable({"table", "a.otio"}).options;
  EXPECT_FALSE(options.isKeepingGaps);
  EXPECT_EQ(options.columns.kind, ColumnChoice::Kind::kAsShown);
  EXPECT_EQ(options.sequence, std::nullopt);
  EXPECT_EQ(options.timeFormat, std::nullopt);
  EXPECT_FALSE(options.isReporting);
}

TEST(Arguments, BadValuesAreOneSentenceThatNamesTheOption) {
  EXPECT_THAT(GetErrorLine({"a.otio", "--width", "0"}), HasSubstr("--width: \"0\" is no width"));
  EXPECT_THAT(GetErrorLine({"a.otio", "--width", "0x10"}), HasSubstr("--width"));
  EXPECT_THAT(GetErrorLine({"a.otio", "--columns", ""}), HasSubstr("--columns: A name is empty"));
  EXPECT_EQ(GetErrorLine({"a.otio", "--time-display", "metres"}),
            "sequence-index: --time-display: There is no \"metres\"; there are timecode, frames, "
            "feet+frames 16mm, feet+frames 35mm, audio samples, milliseconds.");
}

TEST(Arguments, NothingAtAllIsAnsweredWithTheUsage) {
  EXPECT_THAT(GetErrorLine({}), HasSubstr("Usage: sequence-index [COMMAND] FILE...; see"));
}

TEST(Arguments, AMistypedCommandIsNotTakenForItsOptions) {
  EXPECT_EQ(GetErrorLine({"exprt", "a.otio", "-o", "a.csv"}),
            "sequence-index: exprt: There is no such file or command; see sequence-index --help");
}

TEST(Arguments, HelpSaysHowEachCommandIsCalledWithExamplesAndExitCodes) {
  for (const std::vector<const char*>& words :
       {std::vector<const char*>{"--help"}, {"table", "--help"}, {"export", "--help"}}) {
    const std::string help = std::get<std::string>(Parse(words));
    EXPECT_THAT(help, HasSubstr("Usage: sequence-index "));
    EXPECT_THAT(help, HasSubstr("Examples:\n"));
    EXPECT_THAT(help, HasSubstr("Exit codes: 0 done; 2"));
  }
  const std::string table = std::get<std::string>(Parse({"table", "--help"}));
  for (const char* option : {"--gaps", "--columns", "--sequence", "--time-display", "--report",
                             "--width", "What to show", "How to show it"}) {
    EXPECT_THAT(table, HasSubstr(option));
  }
}

}  // namespace
}  // namespace standalone
