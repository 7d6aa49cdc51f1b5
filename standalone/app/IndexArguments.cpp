#include "standalone/app/IndexArguments.h"

#include <CLI/CLI.hpp>

#include "standalone/app/OptionValues.h"

namespace standalone {

namespace {

using Take = std::function<void(const std::string&)>;

/// An option that may be given several times, each time with one value.
void AddRepeatableOption(CLI::App& command, const std::string& name, const char* typeName,
                         const char* group, const char* about, const Take& take) {
  const auto takeAll = [take](const std::vector<std::string>& values) {
    for (const std::string& value : values) take(value);
  };
  command.add_option_function<std::vector<std::string>>(name, takeAll, about)
      ->type_name(typeName)
      ->group(group)
      ->allow_extra_args(false);
}

void AddFilterOptions(CLI::App& command, IndexOptions& options) {
  MZ::SequenceIndex::Options& rows = options.rows;
  AddRepeatableOption(
      command, "--filter", "NAME", kChoosing,
      "Only clips that the filter selects; given several\n"
      "times, those that all of them do:\n"
      "video, audio, graphics, fonts-missing,\n"
      "still-image, effects, effects-missing,\n"
      "transitions, offline-media, speed-change,\n"
      "disabled-or-muted-tracks, disabled-clips,\n"
      "nested-sequence, multicam",
      [&rows](const std::string& text) { rows.filterToggles[ReadFilter(text)] = true; });
  AddOption(command, "--match", "all|any", kChoosing, "Whether a clip must pass all filters or any",
            [&rows](const std::string& text) { rows.matchMode = ReadMatchMode(text); });
  AddRepeatableOption(
      command, "--label", "NAME|RRGGBB", kChoosing,
      "Only clips with this label colour; given several\n"
      "times, with one of these",
      [&rows](const std::string& text) { rows.labelColors.push_back(ReadLabelColor(text)); });
  AddOption(command, "--search", "TEXT", kChoosing,
            "Only clips that hold the text in their name,\n"
            "comment, description, codec, effects and the like,\n"
            "A to Z in any case",
            [&options](const std::string& text) { options.search = text; });
}

void AddRowOptions(CLI::App& command, IndexOptions& options) {
  MZ::SequenceIndex::Options& rows = options.rows;
  command
      .add_flag("--gaps", rows.isKeepingGaps,
                "A row for every gap, not only for clips, whatever\n"
                "the filters say")
      ->group(kChoosing);
  AddFilterOptions(command, options);
  AddOption(command, "--columns", "default|all|LIST", kChoosing,
            "default (8 columns), all (26), or header texts\n"
            "or identifiers, separated by commas, in the\n"
            "order wanted",
            [&options](const std::string& text) { options.columns = ReadColumnChoice(text); });
  AddOption(command, "--sequence", "NAME|#N", kChoosing,
            "The sequence of that name, or at that position\n"
            "in the file, instead of the first",
            [&options](const std::string& text) { options.sequence = text; });
}

void AddReadingOptions(CLI::App& command, ReadingOptions& options) {
  AddRepeatableOption(
      command, "--media-root", "FROM=TO", kReading,
      "Look for media that the timeline knows below the\n"
      "folder FROM below the folder TO, when it is not\n"
      "where the timeline says",
      [&options](const std::string& text) { options.mediaRoots.Add(ReadMediaRoot(text)); });
  command
      .add_flag_callback(
          "--no-probe", [&options] { options.isProbing = false; },
          "Only look whether media files are there; do not\n"
          "read codecs, sizes and rates from them")
      ->group(kReading);
  AddOption(command, "--effects-list", "FILE", kReading,
            "A text file that names the effects you have, one\n"
            "a line; others are missing",
            [&options](const std::string& text) { options.effectsList = text; });
}

void AddReport(CLI::App& command, ReadingOptions& options) {
  command
      .add_flag("--report", options.isReporting,
                "List on standard error what the index can't show\n"
                "of the file, and what was assumed")
      ->group(kReading);
}

void AddTimeDisplay(CLI::App& command, std::optional<TimeFormat>& format) {
  AddOption(command, "--time-display", "NAME", kWriting,
            "How times are written, whatever the file says:\n"
            "timecode, frames, feet+frames 16mm, feet+frames\n"
            "35mm, audio samples, milliseconds",
            [&format](const std::string& text) { format = ReadTimeFormat(text); });
}

void AddDisplayOptions(CLI::App& command, IndexOptions& options) {
  AddTimeDisplay(command, options.timeFormat);
  AddOption(
      command, "--short-gap", "FRAMES", kWriting,
      "The longest gap whose neighbours' times are red\n"
      "on a terminal (5)",
      [&options](const std::string& text) { options.rows.shortGapThreshold = ReadShortGap(text); });
}

}  // namespace

void AddOption(CLI::App& command, const std::string& name, const char* typeName, const char* group,
               const char* about, const Take& take) {
  command.add_option_function<std::string>(name, take, about)->type_name(typeName)->group(group);
}

void AddIndexOptions(CLI::App& command, IndexOptions& options) {
  AddRowOptions(command, options);
  AddReadingOptions(command, options.reading);
  AddReport(command, options.reading);
  AddDisplayOptions(command, options);
}

void AddWindowOptions(CLI::App& command, WindowArguments& arguments) {
  AddReadingOptions(command, arguments.reading);
  AddTimeDisplay(command, arguments.timeFormat);
}

}  // namespace standalone
