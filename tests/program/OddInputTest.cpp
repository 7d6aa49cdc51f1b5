#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "support/Csv.h"
#include "support/Process.h"

/// What the program says about damaged and strange timelines, one oddity a file: the exact line, and
/// the rows that are left of it.
namespace {

using process::Folder;
using process::Outcome;
using process::WriteFile;

Outcome Export(const std::string& file) {
  return process::Run({PROGRAM, "export", file, "--columns", "all", "-o", "-"});
}

std::string FixtureOf(std::string_view name) {
  return std::string(SOURCE_FOLDER "/tests/program/fixtures/odd/").append(name).append(".otio");
}

/// ":7: sentence" of the one line on standard error; empty when there is none.
std::string LineOf(const Outcome& outcome, const std::string& file) {
  if (outcome.errors.empty()) return {};
  const std::string beginning = "sequence-index: " + file;
  const bool isOne = outcome.errors.find('\n') == outcome.errors.size() - 1;
  if (!isOne || !outcome.errors.starts_with(beginning)) return "not one line: " + outcome.errors;
  return outcome.errors.substr(beginning.size(), outcome.errors.size() - beginning.size() - 1);
}

/// "Clip | V1 | 00:00:00:00 | 00:00:00:10", with one column more where one is named.
std::vector<std::string> RowsOf(const std::string& output, std::string_view column) {
  std::vector<std::string_view> columns = {"Clip Name", "Track", "Start Time", "Duration"};
  if (!column.empty()) columns.push_back(column);
  const auto table = csv::Parse(output);
  std::vector<std::string> rows;
  for (std::size_t i = 1; i < table.size(); ++i) {
    std::string& row = rows.emplace_back();
    for (const std::string_view name : columns) {
      if (!row.empty() || name != columns.front()) row += " | ";
      row += table[i].at(csv::FindColumn(table.front(), name));
    }
  }
  return rows;
}

template <typename Oddity>
std::string NameOf(const testing::TestParamInfo<Oddity>& info) {
  return std::string(info.param.name);
}

/// A file that can't be shown at all.
struct Refusal {
  std::string_view name;
  std::string_view line;
};

constexpr Refusal kRefusals[] = {
    {"array", ":1: This is JSON but no OpenTimelineIO: its top object has no \"OTIO_SCHEMA\"."},
    {"comment_in_json", ":2: This is not valid JSON; export the timeline again."},
    {"edl", ":1: Edit decision lists can't be read yet; export OpenTimelineIO (.otio)."},
    {"huge_exponent", ":29: A number is too big to be read; correct it."},
    {"no_schema", ":1: This is JSON but no OpenTimelineIO: its top object has no \"OTIO_SCHEMA\"."},
    {"not_json", ":3: This is not valid JSON; export the timeline again."},
    {"nothing_to_show", ":1: There is nothing to show: no timeline, track, stack or clip."},
    {"trailing_comma", ":4: This is not valid JSON; export the timeline again."},
    {"trailing_text", ":28: There is more text behind the end of the timeline; remove it."},
    {"xml", ":1: XML timelines can't be read yet; export OpenTimelineIO (.otio)."},
};

class RefusedTimeline : public testing::TestWithParam<Refusal> {};

TEST_P(RefusedTimeline, EndsWithTwoAndOneLine) {
  const std::string file = FixtureOf(GetParam().name);
  const Outcome outcome = Export(file);
  EXPECT_EQ(outcome.code, 2);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(LineOf(outcome, file), GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(Odd, RefusedTimeline, testing::ValuesIn(kRefusals), NameOf<Refusal>);

/// A file that is shown as far as it can be understood.
struct Oddity {
  std::string_view name;
  /// Empty: nothing to tell.
  std::string_view line;
  /// A column more to look at.
  std::string_view column;
  std::vector<std::string_view> rows;
};

void PrintTo(const Oddity& oddity, std::ostream* stream) {
  *stream << oddity.name;
}

using namespace std::string_view_literals;  // for a name that holds a zero byte

const Oddity kOddities[] = {
    {"absurd_start_frame",
     ":32: track V1, clip \"Odd clip\": No picture file has such a number; the address of its first "
     "picture is a guess.",
     "File Name",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | ",
      "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | shot.1000000000000000.exr",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | "}},
    {"absurd_zero_padding",
     ":32: track V1, clip \"Odd clip\": No picture file has such a number; the address of its first "
     "picture is a guess.",
     "File Name",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | ",
      "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | "
      "shot.0000000000000000000000000000000000000000000000000000000000000001.exr",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | "}},
    {"active_key_names_nothing",
     ":23: track V1, clip \"Odd clip\": The active media \"Low\" is not among the clip's media; it is "
     "shown as missing.",
     "Offline Status",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | Media is missing",
      "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | Media is missing",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | Media is missing"}},
    {"bad_audio_rate",
     ":7: \"audio_rate\" must be a rate such as 48000; it is left out.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10"}},
    {"bad_frame_rate",
     ":7: \"frame_rate\" must be a rate such as 25 or \"30000/1001\"; it is left out.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10"}},
    {"bad_label_color",
     ":33: track V1, clip \"Odd clip\": \"label_color\" must be written as \"#RRGGBB\"; it is left "
     "out.",
     "Label Color",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | 8A8A8A",
      "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | 8A8A8A",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | 8A8A8A"}},
    {"beyond_100_hours",
     ":23: track V1: The track is longer than 100 hours; it is cut there.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "Odd clip | V1 | 00:00:00:10 | 99:59:59:14"}},
    {"broken_stack_range",
     ":5: The range can't be read; the whole content is shown.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "After | V1 | 00:00:00:10 | 00:00:00:10"}},
    {"control_characters_in_name",
     ":23: track V1, clip \"Line one line two tab bell zero\": Its duration is negative; it is shown "
     "with duration 0.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10",
      "Line one line two\ttab\abell\0zero | V1 | 00:00:00:10 | 00:00:00:00"sv,
      "After | V1 | 00:00:00:10 | 00:00:00:10"}},
    {"empty_timeline", "", "", {}},
    {"fractional_frames",
     "",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "Odd clip | V1 | 00:00:00:10 | 00:00:00:02",
      "After | V1 | 00:00:00:12 | 00:00:00:10"}},
    {"half_surrogates",
     ":25: A text holds half a character; \uFFFD stands in its place (2 times in the file).",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10",
      "\uFFFDOdd clip\uFFFD | V1 | 00:00:00:10 | 00:00:00:10",
      "After | V1 | 00:00:00:20 | 00:00:00:10"}},
    {"infinite_start",
     ":23: track V1, clip \"Odd clip\": The start of its range is not a number; its duration is used.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "Odd clip | V1 | 00:00:00:10 | 00:00:00:10",
      "After | V1 | 00:00:00:20 | 00:00:00:10"}},
    {"list_for_media_references",
     ":31: track V1, clip \"Odd clip\": Its media references are no object; they are left out.",
     "Offline Status",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | Media is missing",
      "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | Media is missing",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | Media is missing"}},
    {"loose_clip_beside_timeline",
     ":31: clip \"Loose\": It stands beside the timelines and is not shown.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10"}},
    {"nan_duration",
     ":23: track V1, clip \"Odd clip\": Its duration is not a number; it is shown with duration 0.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "Odd clip | V1 | 00:00:00:10 | 00:00:00:00",
      "After | V1 | 00:00:00:10 | 00:00:00:10"}},
    {"nan_rate",
     ":23: track V1, clip \"Odd clip\": Its duration has no usable rate; it is shown with duration 0.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "Odd clip | V1 | 00:00:00:10 | 00:00:00:00",
      "After | V1 | 00:00:00:10 | 00:00:00:10"}},
    {"negative_duration",
     ":23: track V1, clip \"Odd clip\": Its duration is negative; it is shown with duration 0.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "Odd clip | V1 | 00:00:00:10 | 00:00:00:00",
      "After | V1 | 00:00:00:10 | 00:00:00:10"}},
    {"negative_zero_padding",
     ":32: track V1, clip \"Odd clip\": No picture file has such a number; the address of its first "
     "picture is a guess.",
     "File Name",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | ",
      "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | shot.1.exr",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | "}},
    {"newer_schema",
     ":23: track V1, item \"Odd clip\": Clip.9 is newer than this reader; only the fields it knows are "
     "read.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "Odd clip | V1 | 00:00:00:10 | 00:00:00:10",
      "After | V1 | 00:00:00:20 | 00:00:00:10"}},
    {"no_range",
     ":23: track V1, clip \"Odd clip\": It has no range; it is shown with duration 0.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "Odd clip | V1 | 00:00:00:10 | 00:00:00:00",
      "After | V1 | 00:00:00:10 | 00:00:00:10"}},
    {"no_tracks", ":1: The timeline has no stack of tracks; it is shown empty.", "", {}},
    {"null_children", "", "", {}},
    {"null_media",
     "",
     "Offline Status",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | Media is missing",
      "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | Media is missing",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | Media is missing"}},
    {"null_tracks", ":1: The timeline has no stack of tracks; it is shown empty.", "", {}},
    {"number_for_name",
     ":25: track V1, clip \"\": Its name is no text; it is left out.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", " | V1 | 00:00:00:10 | 00:00:00:10",
      "After | V1 | 00:00:00:20 | 00:00:00:10"}},
    {"number_for_target_url",
     ":34: track V1, clip \"Odd clip\": The address of its media is no text; it is left out.",
     "Offline Status",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | Media is missing",
      "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | Media file not found",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | Media is missing"}},
    {"number_for_track_kind",
     ":12: track V1: Its kind is no text; it is taken for a picture track.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10"}},
    {"number_on_track",
     ":23: track V1: Something that is no item stands on the track; it is left out.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "After | V1 | 00:00:00:10 | 00:00:00:10"}},
    {"object_for_children", ":13: track V1: Its children are no list; they are left out.", "", {}},
    {"object_without_schema",
     ":23: track V1, item \"Odd item\": An object without \"OTIO_SCHEMA\"; it is shown as a clip "
     "without media.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "Odd item | V1 | 00:00:00:10 | 00:00:00:10",
      "After | V1 | 00:00:00:20 | 00:00:00:10"}},
    {"start_time_with_zero_rate",
     ":4: The start time has no usable rate; the sequence starts at zero.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10"}},
    {"text_among_effects",
     ":31: track V1, clip \"Odd clip\": One of its effects is no object; it is left out.",
     "Effects",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | ",
      "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | Glow; ",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | "}},
    {"text_for_drop_frame",
     ":7: \"drop_frame\" must be true or false; it is left out.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10"}},
    {"text_for_duration",
     ":23: track V1, clip \"Odd clip\": Its duration is not a number; it is shown with duration 0.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "Odd clip | V1 | 00:00:00:10 | 00:00:00:00",
      "After | V1 | 00:00:00:10 | 00:00:00:10"}},
    {"text_for_effects",
     ":31: track V1, clip \"Odd clip\": Its effects are no list; they are left out.",
     "Effects",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | ", "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | ",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | "}},
    {"text_for_enabled",
     ":31: track V1, clip \"Odd clip\": \"enabled\" must be true or false; it is taken as enabled.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "Odd clip | V1 | 00:00:00:10 | 00:00:00:10",
      "After | V1 | 00:00:00:20 | 00:00:00:10"}},
    {"text_for_media",
     ":32: track V1, clip \"Odd clip\": Its media is no object; it is shown as missing.",
     "Offline Status",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | Media is missing",
      "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | Media is missing",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | Media is missing"}},
    {"text_for_metadata",
     ":31: track V1, clip \"Odd clip\": Its metadata is no object; it is left out.",
     "Description",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | ", "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | ",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | "}},
    {"text_for_stack_children", ":7: The tracks are no list; they are left out.", "", {}},
    {"text_for_start_time",
     ":4: The start time is not a number; the sequence starts at zero.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10"}},
    {"text_for_track_enabled",
     ":13: track V1: \"enabled\" must be true or false; it is taken as enabled.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10"}},
    {"text_for_tracks", ":5: The timeline has no stack of tracks; it is shown empty.", "", {}},
    {"track_range_beside_items",
     ":9: track V1: The track's range shows none of its items; the whole track is shown.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "After | V1 | 00:00:00:10 | 00:00:00:10"}},
    {"transition_alone",
     ":14: track V1, transition \"Alone\": It touches no clip; it is left out.",
     "",
     {}},
    {"transition_in_stack",
     ":25: Only tracks and items can stand in a stack; this is left out.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10"}},
    {"twice_the_same_key",
     ":26: \"name\" stands twice in one object; the first is used.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "First name | V1 | 00:00:00:10 | 00:00:00:10",
      "After | V1 | 00:00:00:20 | 00:00:00:10"}},
    {"two_transitions",
     ":29: track V1, transition \"Second\": Two transitions follow each other; only the first is kept.",
     "Transitions",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | [OUT]: First; ",
      "After | V1 | 00:00:00:10 | 00:00:00:10 | [IN]: First; "}},
    {"unknown_effect",
     ":31: track V1, clip \"Odd clip\": Unknown kind of effect \"StudioEffect\"; only its name is "
     "used.",
     "Effects",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | ",
      "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | Glow; ",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | "}},
    {"unknown_media",
     ":32: track V1, clip \"Odd clip\": Unknown kind of media reference \"StudioReference\"; only its "
     "address is used.",
     "File Path",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10 | ", "Odd clip | V1 | 00:00:00:10 | 00:00:00:10 | a.mov",
      "After | V1 | 00:00:00:20 | 00:00:00:10 | "}},
    {"unknown_object",
     ":23: track V1, item \"Odd item\": Unknown kind of object \"StudioShot\"; it is shown as a clip "
     "without media.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "Odd item | V1 | 00:00:00:10 | 00:00:00:10",
      "After | V1 | 00:00:00:20 | 00:00:00:10"}},
    {"unknown_time_display",
     ":7: The time display \"furlongs\" is not known; timecode is used.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10"}},
    {"unknown_track_kind",
     ":25: track \"English\": A track of the kind \"Subtitle\" with 1 item holds neither picture nor "
     "sound; it is not shown.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10"}},
    {"zero_rate",
     ":23: track V1, clip \"Odd clip\": Its duration has no usable rate; it is shown with duration 0.",
     "",
     {"Before | V1 | 00:00:00:00 | 00:00:00:10", "Odd clip | V1 | 00:00:00:10 | 00:00:00:00",
      "After | V1 | 00:00:00:10 | 00:00:00:10"}},
};

class OddTimeline : public testing::TestWithParam<Oddity> {};

TEST_P(OddTimeline, IsShownAsFarAsItIsUnderstood) {
  const std::string file = FixtureOf(GetParam().name);
  const Outcome outcome = Export(file);
  EXPECT_EQ(outcome.code, 0);
  EXPECT_EQ(LineOf(outcome, file), GetParam().line);
  const std::vector<std::string_view>& rows = GetParam().rows;
  EXPECT_EQ(RowsOf(outcome.output, GetParam().column),
            std::vector<std::string>(rows.begin(), rows.end()));
}

INSTANTIATE_TEST_SUITE_P(Odd, OddTimeline, testing::ValuesIn(kOddities), NameOf<Oddity>);

TEST(OddTimelines, EveryFixtureHasItsExpectation) {
  std::size_t count = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(SOURCE_FOLDER "/tests/program/fixtures/odd")) {
    EXPECT_EQ(entry.path().extension(), ".otio");
    ++count;
  }
  EXPECT_EQ(count, std::size(kRefusals) + std::size(kOddities));
}

/// Of bytes that no text file can hold.
std::string LineOfBytes(const std::string& bytes) {
  const Folder folder;
  const std::string file = (folder / "odd.otio").native();
  WriteFile(file, bytes);
  const Outcome outcome = Export(file);
  EXPECT_EQ(outcome.code, 2);
  EXPECT_EQ(outcome.output, "");
  return LineOf(outcome, file);
}

TEST(OddBytes, EndWithTwoAndOneLine) {
  EXPECT_EQ(LineOfBytes(""), ": The file is empty; export the timeline again.");
  EXPECT_EQ(LineOfBytes(" \n\t\r\n "), ": The file holds only blanks; export the timeline again.");
  EXPECT_EQ(LineOfBytes(std::string("\xFF\xFE{\0}\0", 6)),
            ":1: The text is UTF-16; save the file as UTF-8.");
  EXPECT_EQ(LineOfBytes("{\"OTIO_SCHEMA\": \"Timeline.1\",\n\"name\": \"\xC3(\"}"),
            ":2: The text is not valid UTF-8; save the file as UTF-8.");
  const std::string whole = process::ReadFile(FixtureOf("unknown_object"));
  EXPECT_EQ(LineOfBytes(whole.substr(0, whole.size() / 2)),
            ":24: The file ends in the middle; it is not complete: export or copy it again.");
}

std::string Nest(int levels) {
  std::string text = R"({"OTIO_SCHEMA": "Timeline.1", "tracks":)";
  for (int i = 0; i < levels; ++i) text += "\n{\"OTIO_SCHEMA\": \"Stack.1\", \"children\": [";
  for (int i = 0; i < levels; ++i) text += "]}";
  return text + "}";
}

TEST(OddBytes, NestedDeeperThan256LevelsEndWithTwoAndOneLine) {
  EXPECT_EQ(LineOfBytes(Nest(129)), ":130: The timeline is nested deeper than 256 levels; flatten it.");
}

TEST(OddPaths, EndWithTwoAndOneLine) {
  const Folder folder;
  const std::string missing = (folder / "none.otio").native();
  EXPECT_EQ(Export(missing).code, 2);
  EXPECT_EQ(LineOf(Export(missing), missing), ": There is no such file; check the path.");
  const std::string path = folder.GetPath().native();
  EXPECT_EQ(Export(path).code, 2);
  EXPECT_EQ(LineOf(Export(path), path), ": This is a folder; give a timeline file.");
}

}  // namespace
