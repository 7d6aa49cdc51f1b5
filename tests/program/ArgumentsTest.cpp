#include "standalone/app/Arguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "standalone/app/CommandError.h"
#include "standalone/app/FilterNames.h"

namespace standalone {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

Arguments Parse(std::vector<const char*> words, bool hasDisplay = false) {
  words.insert(words.begin(), "sequence-index");
  return ParseArguments(static_cast<int>(words.size()), words.data(), hasDisplay);
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

TEST(Arguments, AFileAloneIsOpenedInAWindowWhereThereIsADisplay) {
  const auto arguments = std::get<WindowArguments>(Parse({SOURCE_FOLDER "/samples/demo.otio"}, true));
  EXPECT_THAT(arguments.files, ElementsAre(SOURCE_FOLDER "/samples/demo.otio"));
}

TEST(Arguments, NothingAtAllOpensAWindowWhereThereIsADisplay) {
  EXPECT_TRUE(std::get<WindowArguments>(Parse({}, true)).files.empty());
}

TEST(Arguments, OptionsOfATableAskForATableAlsoWhereThereIsADisplay) {
  EXPECT_TRUE(std::holds_alternative<TableArguments>(Parse({"cut.otio", "--gaps"}, true)));
  EXPECT_TRUE(std::holds_alternative<TableArguments>(Parse({"-"}, true)));
}

TEST(Arguments, AWindowIsNotOpenedForAFileThatIsNotThere) {
  try {
    Parse({"tabel"}, true);
    FAIL();
  } catch (const CommandError& error) {
    EXPECT_THAT(error.GetLine(), HasSubstr("There is no such file or command"));
  }
}

TEST(Arguments, AWindowTakesTheOptionsOfReading) {
  const auto arguments = std::get<WindowArguments>(
      Parse({"window", "a.otio", "b.otio", "--no-probe", "--media-root", "/a=/b", "--effects-list",
             "fx.txt", "--time-display", "frames"}));
  EXPECT_THAT(arguments.files, ElementsAre("a.otio", "b.otio"));
  EXPECT_FALSE(arguments.reading.isProbing);
  EXPECT_EQ(arguments.reading.effectsList, "fx.txt");
  EXPECT_EQ(arguments.timeFormat, TimeFormat::kFrames);
}

TEST(Arguments, AFileAloneIsShownAsATable) {
  const TableArguments arguments = ParseTable({"cut.otio"});
  EXPECT_THAT(arguments.files, ElementsAre("cut.otio"));
  EXPECT_TRUE(arguments.isCommandImplied);
  EXPECT_FALSE(ParseTable({"table", "cut.otio"}).isCommandImplied);
}

TEST(Arguments, WithoutCommandTheOptionsAreThoseOfTheTable) {
  EXPECT_TRUE(ParseTable({"--gaps", "cut.otio"}).options.rows.isKeepingGaps);
  EXPECT_EQ(ParseTable({"cut.otio", "--width", "70"}).width, 70U);
  EXPECT_THAT(ParseTable({"-", "b.otio"}).files, ElementsAre("-", "b.otio"));
}

TEST(Arguments, FilesMayHaveTheNamesOfCommandsOrOptions) {
  EXPECT_THAT(ParseTable({"table", "table", "export"}).files, ElementsAre("table", "export"));
  EXPECT_THAT(ParseTable({"--", "--gaps"}).files, ElementsAre("--gaps"));
  EXPECT_THAT(ParseTable({"[a,b].otio"}).files, ElementsAre("[a,b].otio"));
}

/// The numbers of the filters that are switched on, sorted.
std::vector<std::uint32_t> GetSelected(const MZ::SequenceIndex::Options& options) {
  std::vector<std::uint32_t> selected;
  for (const auto& [id, isSelected] : options.filterToggles) {
    if (isSelected) selected.push_back(id);
  }
  std::ranges::sort(selected);
  return selected;
}

TEST(Arguments, BothCommandsTakeTheSameOptions) {
  const std::vector<const char*> options{"--gaps",
                                         "--columns",
                                         "Track,#",
                                         "--sequence",
                                         "#2",
                                         "--report",
                                         "--filter",
                                         "offline-media",
                                         "--match",
                                         "any",
                                         "--short-gap",
                                         "0",
                                         "--label",
                                         "red",
                                         "--search",
                                         "take",
                                         "--media-root",
                                         "/there=/here",
                                         "--filter",
                                         "Video",
                                         "--no-probe",
                                         "--effects-list",
                                         "fx.txt",
                                         "--time-display",
                                         "FEET-frames-16mm"};
  std::vector<const char*> table{"table", "a.otio"};
  std::vector<const char*> exported{"export", "a.otio", "-o", "a.csv"};
  table.insert(table.end(), options.begin(), options.end());
  exported.insert(exported.end(), options.begin(), options.end());
  for (const IndexOptions& read :
       {ParseTable(table).options, std::get<ExportArguments>(Parse(exported)).options}) {
    EXPECT_TRUE(read.rows.isKeepingGaps);
    EXPECT_THAT(read.columns.names, ElementsAre("Track", "#"));
    EXPECT_EQ(read.sequence, "#2");
    EXPECT_EQ(read.timeFormat, TimeFormat::kFeetAndFrames16mm);
    EXPECT_TRUE(read.reading.isReporting);
    EXPECT_THAT(GetSelected(read.rows), ElementsAre(0U, 3U));
    EXPECT_EQ(read.rows.matchMode, 1U);
    EXPECT_EQ(read.rows.shortGapThreshold, 0);
    EXPECT_THAT(read.rows.labelColors, ElementsAre(ZSL::Color{0xC8, 0x4B, 0x46, 0xFF}));
    EXPECT_EQ(read.search, "take");
    EXPECT_THAT(read.reading.mediaRoots.FindPlaces("/there/a.mov"), ElementsAre("/here/a.mov"));
    EXPECT_FALSE(read.reading.isProbing);
    EXPECT_EQ(read.reading.effectsList, "fx.txt");
  }
}

TEST(Arguments, UnlessAskedEverythingIsAsThePanelAndTheFileHaveIt) {
  const IndexOptions options = ParseTable({"table", "a.otio"}).options;
  EXPECT_EQ(options.rows, MZ::SequenceIndex::Options());
  EXPECT_EQ(options.search, "");
  EXPECT_TRUE(options.reading.mediaRoots.IsEmpty());
  EXPECT_TRUE(options.reading.isProbing);
  EXPECT_EQ(options.reading.effectsList, std::nullopt);
  EXPECT_EQ(options.columns.kind, ColumnChoice::Kind::kAsShown);
  EXPECT_EQ(options.sequence, std::nullopt);
  EXPECT_EQ(options.timeFormat, std::nullopt);
  EXPECT_FALSE(options.reading.isReporting);
}

TEST(Arguments, BadValuesAreOneSentenceThatNamesTheOption) {
  EXPECT_THAT(GetErrorLine({"a.otio", "--width", "0"}), HasSubstr("--width: \"0\" is no width"));
  EXPECT_THAT(GetErrorLine({"a.otio", "--width", "0x10"}), HasSubstr("--width"));
  EXPECT_THAT(GetErrorLine({"a.otio", "--columns", ""}), HasSubstr("--columns: A name is empty"));
  EXPECT_EQ(GetErrorLine({"a.otio", "--time-display", "metres"}),
            "sequence-index: --time-display: There is no \"metres\"; there are timecode, frames, "
            "feet+frames 16mm, feet+frames 35mm, audio samples, milliseconds.");
}

TEST(Arguments, EachFilterSwitchesItsOwnOn) {
  for (const FilterName& filter : kFilterNames) {
    const std::string name(filter.name);
    const IndexOptions options = ParseTable({"a.otio", "--filter", name.c_str()}).options;
    EXPECT_THAT(GetSelected(options.rows), ElementsAre(filter.id)) << name;
  }
}

TEST(Arguments, LabelsAreWordsOfThePaletteOrColours) {
  const auto options =
      ParseTable({"a.otio", "--label", "TEAL", "--label", "3e6B5c", "--label", "#010203"}).options;
  EXPECT_THAT(options.rows.labelColors,
              ElementsAre(ZSL::Color{0x2F, 0x9C, 0x8C, 0xFF}, ZSL::Color{0x3E, 0x6B, 0x5C, 0xFF},
                          ZSL::Color{0x01, 0x02, 0x03, 0xFF}));
}

TEST(Arguments, AnOptionThatIsRepeatedTakesOneValueEachTime) {
  const TableArguments arguments = ParseTable(
      {"--filter", "video", "a.otio", "--label", "Red", "b.otio", "--media-root", "/a=/b", "c.otio"});
  EXPECT_THAT(arguments.files, ElementsAre("a.otio", "b.otio", "c.otio"));
}

TEST(Arguments, ValuesMayLookLikeOptionsOrLists) {
  EXPECT_EQ(ParseTable({"a.otio", "--search", "--gaps"}).options.search, "--gaps");
  EXPECT_EQ(ParseTable({"a.otio", "--search", "[a, b]"}).options.search, "[a, b]");
  EXPECT_EQ(ParseTable({"a.otio", "--search=a=b"}).options.search, "a=b");
  EXPECT_THAT(ParseTable({"a.otio", "--media-root", "D:\\Media=/mnt/a=b"})
                  .options.reading.mediaRoots.FindPlaces("d:/Media/x.mov"),
              ElementsAre("/mnt/a=b/x.mov"));
}

TEST(Arguments, BadValuesOfFiltersAreOneSentenceThatSaysWhatThereIs) {
  EXPECT_EQ(GetErrorLine({"a.otio", "--filter", "sound"}),
            "sequence-index: --filter: There is no filter \"sound\"; there are video, audio, graphics, "
            "fonts-missing, still-image, effects, effects-missing, transitions, offline-media, "
            "speed-change, disabled-or-muted-tracks, disabled-clips, nested-sequence, multicam.");
  EXPECT_EQ(GetErrorLine({"a.otio", "--match", "both"}),
            "sequence-index: --match: There is no \"both\"; there are all, any.");
  EXPECT_EQ(GetErrorLine({"a.otio", "--label", "Mauve"}),
            "sequence-index: --label: There is no label \"Mauve\"; there are Grey, Red, Orange, Amber, "
            "Yellow, Lime, Green, Teal, Cyan, Blue, Indigo, Violet, Purple, Pink, Brown, Tan, and "
            "colours as RRGGBB.");
  for (const char* odd : {"#12345", "12345G", "1234567", "", "##12345", "-12345"}) {
    EXPECT_THAT(GetErrorLine({"a.otio", "--label", odd}), HasSubstr("--label: There is no label"))
        << odd;
  }
}

TEST(Arguments, AShortGapIsAWholeNumberOfFramesFromZero) {
  for (const char* odd : {"-1", "2.5", "2f", "", "2147483648", " 2", "+2", "0x2"}) {
    EXPECT_EQ(GetErrorLine({"a.otio", "--short-gap", odd}),
              "sequence-index: --short-gap: \"" + std::string(odd) +
                  "\" is no number of frames; give one from 0 to 2147483647.");
  }
  const auto read = [](const char* text) {
    return ParseTable({"a.otio", "--short-gap", text}).options.rows.shortGapThreshold;
  };
  EXPECT_EQ(read("0"), 0);
  EXPECT_EQ(read("12"), 12);
  EXPECT_EQ(read("2147483647"), 2147483647);
}

TEST(Arguments, AMediaRootNamesTwoFolders) {
  for (const char* odd : {"/there", "=/here", "/there=", ""}) {
    EXPECT_EQ(GetErrorLine({"a.otio", "--media-root", odd}),
              "sequence-index: --media-root: \"" + std::string(odd) +
                  "\" is no media root; give FROM=TO, the folder there and the folder here.");
  }
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
  for (const char* option :
       {"--gaps", "--columns", "--sequence", "--time-display", "--report", "--width", "--filter",
        "--match", "--label", "--search", "--short-gap", "--media-root", "--no-probe", "--effects-list",
        "What to show", "What to read", "How to show it"}) {
    EXPECT_THAT(table, HasSubstr(option));
  }
}

}  // namespace
}  // namespace standalone
