#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "support/Csv.h"
#include "support/Process.h"
#include "support/Terminal.h"

/// The rows that users ask for, by filters, labels and a search, of the demo.
namespace {

using process::Folder;
using process::Outcome;
using process::WriteFile;
using testing::ElementsAre;
using testing::Gt;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Lt;
using testing::Not;
using testing::SizeIs;

using Words = std::vector<std::string>;

const std::string kDemo = std::string(SOURCE_FOLDER) + "/samples/demo.otio";
const std::string kFixtures = std::string(SOURCE_FOLDER) + "/tests/program/fixtures/";
/// Clips of the demo; with its gaps there are more rows.
constexpr std::size_t kDemoClips = 110;

Words GetLines(const std::string& text) {
  std::istringstream stream(text);
  Words lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

Outcome RunProgram(Words arguments) {
  arguments.insert(arguments.begin(), PROGRAM);
  return process::Run(arguments);
}

Outcome Export(const Words& options) {
  Words arguments{"export", kDemo, "--columns", "#,Clip Name", "-o", "-"};
  arguments.insert(arguments.end(), options.begin(), options.end());
  return RunProgram(arguments);
}

/// The exported rows as "29 Crossing, midday".
Words GetRows(const Words& options) {
  const Outcome outcome = Export(options);
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  EXPECT_EQ(outcome.errors, "");
  Words rows;
  for (const csv::Row& row : csv::Parse(outcome.output)) rows.push_back(row[0] + " " + row[1]);
  if (!rows.empty()) rows.erase(rows.begin());  // the header
  return rows;
}

/// The sections of a file: "== name", then a line for each row.
std::map<std::string, Words> ReadSections(const std::string& file) {
  std::map<std::string, Words> sections;
  std::string name;
  for (const std::string& line : GetLines(process::ReadFile(file))) {
    if (line.starts_with("== ")) {
      name = line.substr(3);
    } else {
      sections[name].push_back(line);
    }
  }
  return sections;
}

TEST(Filters, EachSelectsItsRowsOfTheDemo) {
  const auto expected = ReadSections(kFixtures + "demo-filters.txt");
  EXPECT_THAT(expected, SizeIs(14));
  for (const auto& [filter, rows] : expected) {
    EXPECT_THAT(rows, SizeIs(Gt(0U))) << filter;
    EXPECT_THAT(rows, SizeIs(Lt(kDemoClips))) << filter;
    EXPECT_EQ(GetRows({"--filter", filter}), rows) << filter;
  }
}

TEST(Filters, SomeRowsOfTheDemo) {
  EXPECT_THAT(GetRows({"--filter", "offline-media"}),
              ElementsAre("53 Storm of 1962", "65 Lighthouse, reel 14", "72 Bollard"));
  EXPECT_THAT(GetRows({"--filter", "effects-missing"}),
              ElementsAre("29 Crossing, midday", "47 Nils says \"not yet\", twice", "55 Beacon, slowed",
                          "63 Harbour air, north side", "76 Fish auction"));
  EXPECT_THAT(GetRows({"--filter", "FONTS-missing"}),
              ElementsAre("3 Main title", "25 Date 1931", "27 Date 1974", "69 Letter, handwriting",
                          "109 End credits"));
}

TEST(Filters, OfSeveralARowMustPassAllUnlessAskedForAny) {
  const Words both{"--filter", "multicam", "--filter", "disabled-or-muted-tracks"};
  EXPECT_THAT(GetRows(both), ElementsAre("11 Ada, wide, take 2"));
  Words all = both;
  all.insert(all.end(), {"--match", "all"});
  EXPECT_EQ(GetRows(all), GetRows(both));
  EXPECT_THAT(GetRows({"--filter", "nested-sequence", "--match", "any", "--filter", "offline-media"}),
              ElementsAre("18 Chart montage", "53 Storm of 1962", "65 Lighthouse, reel 14",
                          "67 Chart montage", "72 Bollard", "93 Farewell"));
}

TEST(Filters, ThatExcludeEachOtherLeaveTheHeader) {
  EXPECT_EQ(Export({"--filter", "video", "--filter", "audio"}).output, "#,Clip Name\n");
  EXPECT_THAT(GetRows({"--filter", "video", "--filter", "audio", "--match", "any"}),
              SizeIs(kDemoClips));
}

TEST(Filters, WithoutOneTheMatchModeSelectsNothingAway) {
  EXPECT_THAT(GetRows({"--match", "any"}), SizeIs(kDemoClips));
  EXPECT_THAT(GetRows({"--match", "all"}), SizeIs(kDemoClips));
}

TEST(Labels, SelectByWordOrColour) {
  const Words pink{"21 Scratch voice, charts", "31 Crossing, take 3", "68 Scratch voice, letter",
                   "95 Scratch voice, farewell", "108 Last rope, long"};
  EXPECT_EQ(GetRows({"--label", "pink"}), pink);
  EXPECT_EQ(GetRows({"--label", "#DB86A8"}), pink);
  EXPECT_EQ(GetRows({"--label", "db86a8"}), pink);
}

TEST(Labels, OfSeveralOneIsEnoughAndFiltersMustPassToo) {
  EXPECT_THAT(GetRows({"--label", "Pink", "--label", "3E6B5C"}),
              ElementsAre("21 Scratch voice, charts", "31 Crossing, take 3", "61 Live feed, quay",
                          "66 Customs shed", "68 Scratch voice, letter", "95 Scratch voice, farewell",
                          "108 Last rope, long"));
  EXPECT_THAT(GetRows({"--label", "Pink", "--filter", "video"}),
              ElementsAre("31 Crossing, take 3", "108 Last rope, long"));
  EXPECT_THAT(GetRows({"--label", "010203"}), IsEmpty());
}

TEST(Search, FindsTextsOfAllKindsInAnyCaseOfAsciiLetters) {
  EXPECT_THAT(GetRows({"--search", "HOLD two"}), ElementsAre("1 Harbour before dawn"));
  EXPECT_THAT(GetRows({"--search", "deluxe"}), ElementsAre("29 Crossing, midday"));
  EXPECT_THAT(GetRows({"--search", "BRACKENFOLD"}),
              ElementsAre("3 Main title", "25 Date 1931", "27 Date 1974", "69 Letter, handwriting",
                          "109 End credits"));
}

TEST(Search, ComparesOtherLettersExactly) {
  EXPECT_THAT(GetRows({"--search", "渡し"}), ElementsAre("19 渡し船の夜明け"));
  EXPECT_THAT(GetRows({"--search", "Ακτή"}), ElementsAre("43 Ακτή, πρωί", "45 Place name, Ακτή"));
  EXPECT_THAT(GetRows({"--search", "ακτή"}), ElementsAre("43 Ακτή, πρωί"));  // by its file's name
  EXPECT_THAT(GetRows({"--search", "ΑΚΤΉ"}), IsEmpty());
}

TEST(Search, ThatFindsNothingLeavesTheHeader) {
  const Outcome outcome =
      RunProgram({"table", kDemo, "--search", "no such text", "--columns", "#,Clip Name"});
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  EXPECT_EQ(outcome.output, "#  Clip Name\n");
}

TEST(Search, OfNothingShowsAll) {
  EXPECT_THAT(GetRows({"--search", ""}), SizeIs(kDemoClips));
}

TEST(Search, AndFiltersAreBothRequired) {
  EXPECT_THAT(GetRows({"--search", "gulls", "--filter", "disabled-clips"}), ElementsAre("33 Gulls"));
}

TEST(Search, FindsWhatWasReadFromMediaFiles) {
  const auto find = [](const Words& more) {
    Words options{"--search", "240 x 160"};
    options.insert(options.end(), more.begin(), more.end());
    return GetRows(options);
  };
  EXPECT_THAT(find({}), ElementsAre("38 Timetable, close", "84 Ticket stub"));
  EXPECT_THAT(find({"--no-probe"}), IsEmpty());
}

TEST(Gaps, StayWhateverTheFiltersSay) {
  const Words rows = GetRows({"--gaps", "--filter", "nested-sequence"});
  const auto gaps = std::count_if(rows.begin(), rows.end(),
                                  [](const std::string& row) { return row.ends_with(" Gap"); });
  EXPECT_EQ(gaps, 63);
  Words others;
  for (const std::string& row : rows) {
    if (!row.ends_with(" Gap")) others.push_back(row);
  }
  EXPECT_THAT(others, ElementsAre("34 Chart montage", "111 Chart montage", "153 Farewell"));
}

TEST(Filters, TableAndExportAgree) {
  const std::vector<Words> wishes{
      {"--filter", "effects-missing"},
      {"--filter", "multicam", "--filter", "offline-media", "--match", "any"},
      {"--label", "Pink", "--gaps"},
      {"--search", "ada"}};
  for (const Words& wish : wishes) {
    Words arguments{"table", kDemo, "--columns", "#,Clip Name"};
    arguments.insert(arguments.end(), wish.begin(), wish.end());
    const Outcome table = RunProgram(arguments);
    Words shown = GetLines(table.output);
    ASSERT_FALSE(shown.empty()) << table.errors;
    shown.erase(shown.begin());
    for (std::string& line : shown) {
      line.erase(0, line.find_first_not_of(' '));
      line.erase(line.find(' '), 1);
    }
    EXPECT_EQ(shown, GetRows(wish));
  }
}

/// The line of a clip in the table on a terminal with colours.
std::string ShowLine(const std::string& clip, const Words& options) {
  Words command{PROGRAM, "table", kDemo, "--columns", "Clip Name,Track,Start Time,End Time"};
  command.insert(command.end(), options.begin(), options.end());
  for (const std::string& line : GetLines(terminal::Run(command, 100).output)) {
    if (line.starts_with(clip)) return line;
  }
  return "no such line";
}

TEST(ShortGaps, AreThoseOfAsManyFramesAsAsked) {
  constexpr const char* kRedEnd = "\033[31m01:00:10:22\033[0m";
  constexpr const char* kRedStart = "\033[31m01:00:10:24\033[0m";
  for (const Words& options : {Words{}, {"--short-gap", "2"}, {"--short-gap", "2147483647"}}) {
    EXPECT_THAT(ShowLine("Ada opens the wheelhouse", options), HasSubstr(kRedEnd));
    EXPECT_THAT(ShowLine("Interview Ada, wide", options), HasSubstr(kRedStart));
  }
  for (const Words& options : {Words{"--short-gap", "1"}, {"--short-gap", "0"}}) {
    EXPECT_THAT(ShowLine("Ada opens the wheelhouse", options), Not(HasSubstr("\033[31m")));
    EXPECT_THAT(ShowLine("Interview Ada, wide", options), Not(HasSubstr("\033[31m")));
  }
}

TEST(Filters, BadOnesAreOneLineAndNothingIsWritten) {
  const Folder folder;
  const std::string output = (folder / "out.csv").native();
  const std::map<Words, std::string> lines{
      {{"--filter", "sound"}, "--filter: There is no filter \"sound\"; there are video, "},
      {{"--match", "some"}, "--match: There is no \"some\"; there are all, any.\n"},
      {{"--label", "Mauve"}, "--label: There is no label \"Mauve\"; there are Grey, "},
      {{"--short-gap", "-3"},
       "--short-gap: \"-3\" is no number of frames; give one from 0 to 2147483647.\n"},
      {{"--media-root", "nowhere"},
       "--media-root: \"nowhere\" is no media root; give FROM=TO, the folder there and the folder "
       "here.\n"},
      {{"--effects-list", "no-such.txt"}, "no-such.txt: There is no such file; check the path.\n"}};
  for (const auto& [wish, line] : lines) {
    Words arguments{"export", "no-such.otio", "-o", output};
    arguments.insert(arguments.end(), wish.begin(), wish.end());
    const Outcome outcome = RunProgram(arguments);
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors.find("sequence-index: " + line), 0U) << outcome.errors;
    EXPECT_THAT(GetLines(outcome.errors), SizeIs(1));
  }
  EXPECT_TRUE(std::filesystem::is_empty(folder.GetPath()));
}

TEST(EffectsListOption, CallsAddedEffectsMissingThatTheListDoesNotName) {
  const Folder folder;
  const std::string list = (folder / "effects.txt").native();
  WriteFile(list,
            "Colour Balance\r\n  Slow Zoom \n\nStabiliser\nDeinterlace\nWarm Glow\nBlurred Bars\n"
            "Noise Reduction\nVignette\nGlow\nCurves\nHalation\nLevels\nPaper Texture\nDrop Shadow\n"
            "Low Cut\nHall Echo\nGrain Deluxe\n");
  EXPECT_THAT(
      GetRows({"--filter", "effects-missing", "--effects-list", list}),
      ElementsAre("29 Crossing, midday", "47 Nils says \"not yet\", twice", "55 Beacon, slowed",
                  "63 Harbour air, north side", "76 Fish auction", "85 Ferry at the pier, rain"));
}

TEST(EffectsListOption, AListThatCannotBeReadIsOneLineBeforeTheTimelineIsRead) {
  const Folder folder;
  const std::string list = (folder / "effects.txt").native();
  WriteFile(list, "Blur\n\xFF\n");
  for (const auto& [file, line] :
       {std::pair(folder.GetPath().native(), ": The list can't be read: Is a directory.\n"),
        std::pair(list, ":2: The list is not valid UTF-8; save it as UTF-8.\n")}) {
    const Outcome outcome = RunProgram({"table", "no-such.otio", "--effects-list", file});
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors, "sequence-index: " + file + line);
  }
}

}  // namespace
