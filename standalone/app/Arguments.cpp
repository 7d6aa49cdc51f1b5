#include "standalone/app/Arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "standalone/app/CommandError.h"
#include "standalone/app/IndexArguments.h"
#include "standalone/app/OptionValues.h"

namespace standalone {

namespace {

using Words = std::vector<std::string>;

constexpr const char* kAbout =
    "Sequence Index shows the clips and gaps of a timeline as a table.\n"
    "It opens OpenTimelineIO files (.otio) and bundles (.otioz, .otiod).\n"
    "Without a command, it opens a window with the named files where there is a display, and\n"
    "prints them as \"table\" does elsewhere.";

constexpr const char* kExitCodes =
    "Exit codes: 0 done; 2 the command line, the input or the output is at fault.";

constexpr const char* kExamples =
    "Examples:\n"
    "  sequence-index cut.otio\n"
    "  sequence-index table cut.otio --gaps --columns \"#,Clip Name,Start Time\"\n"
    "  sequence-index table cut.otio --filter offline-media\n"
    "  sequence-index export cut.otio -o cut.csv\n"
    "\n"
    "sequence-index COMMAND --help says more about a command.\n";

constexpr const char* kTableExamples =
    "Examples:\n"
    "  sequence-index table cut.otio\n"
    "  sequence-index table cut.otio --columns all --gaps | less -S\n"
    "  sequence-index table reels.otio --sequence \"#2\" --time-display frames\n"
    "  sequence-index table - --width 120 < cut.otio\n"
    "  sequence-index table cut.otio --filter offline-media --filter fonts-missing --match any\n"
    "  sequence-index table cut.otio --filter video --label Red --label 3E6B5C --search prores\n"
    "  sequence-index table cut.otio --gaps --short-gap 2\n"
    "  sequence-index table cut.otio --media-root /Volumes/Raid=/mnt/raid\n"
    "  sequence-index table cut.otio --filter effects-missing --effects-list effects.txt\n"
    "\n"
    "On a terminal the table is as wide as the screen, and coloured unless NO_COLOR is set.\n"
    "Texts that do not fit end in \"…\"; no column is cut to less than 8. Elsewhere nothing is cut.\n";

constexpr const char* kExportExamples =
    "Examples:\n"
    "  sequence-index export cut.otio -o cut.csv\n"
    "  sequence-index export cut.otio --gaps --columns all -o -\n"
    "  sequence-index export cut.otio --columns \"Clip Name, Tape Name, File Path\" -o media.csv\n"
    "  sequence-index export cut.otio --filter offline-media --no-probe -o offline.csv\n"
    "  sequence-index export cut.otio --search \"take 2\" --media-root \"D:\\Media=/mnt/media\" -o -\n"
    "  sequence-index export cut.otio --filter effects --label Amber --effects-list fx.txt -o -\n"
    "\n"
    "A file that exists is replaced whole, or left as it was.\n";

constexpr const char* kWindowExamples =
    "Examples:\n"
    "  sequence-index window\n"
    "  sequence-index window cut.otio reels.otioz\n"
    "  sequence-index window cut.otio --media-root /Volumes/Raid=/mnt/raid\n"
    "\n"
    "Help > Keyboard Shortcuts says which keys do what.\n";

constexpr const char* kCommands = "Commands";

constexpr std::array<std::string_view, 6> kFirstWords{"table", "export", "window",
                                                      "-h",    "--help", "--version"};
constexpr const char* kStream = "-";

std::string WithExitCodes(const char* text) {
  return std::string(text) + "\n" + kExitCodes;
}

CLI::App* AddTable(CLI::App& program, TableArguments& arguments) {
  CLI::App* const command = program.add_subcommand("table", "Print the index of timelines as a table");
  command->group(kCommands)->footer(WithExitCodes(kTableExamples));
  command->add_option("FILE", arguments.files, "The timeline files; - reads standard input")
      ->required()
      ->type_name("");
  AddIndexOptions(*command, arguments.options);
  AddOption(*command, "--width", "N", kWriting,
            "Fit the table into N columns of the screen, also\n"
            "where it goes to no terminal",
            [&arguments](const std::string& text) { arguments.width = RequireWidth(text); });
  return command;
}

void AddExport(CLI::App& program, ExportArguments& arguments) {
  CLI::App* const command =
      program.add_subcommand("export", "Write the index of a timeline as comma-separated values");
  command->group(kCommands)->footer(WithExitCodes(kExportExamples));
  command->add_option("FILE", arguments.file, "The timeline file; - reads standard input")
      ->required()
      ->type_name("");
  command->add_option("-o,--output", arguments.output, "The file to write; - writes to standard output")
      ->required()
      ->type_name("OUT.csv");
  AddIndexOptions(*command, arguments.options);
}

CLI::App* AddWindow(CLI::App& program, WindowArguments& arguments) {
  CLI::App* const command =
      program.add_subcommand("window", "Open timelines in a window, with their index beside them");
  command->group(kCommands)->footer(WithExitCodes(kWindowExamples));
  command->add_option("FILE", arguments.files, "The timeline files")->type_name("");
  AddWindowOptions(*command, arguments);
  return command;
}

/// The program's commands, and what they were asked for.
class CommandLine {
 public:
  CommandLine() {
    program.set_version_flag("--version", "sequence-index " SEQUENCE_INDEX_VERSION);
    program.footer(WithExitCodes(kExamples));
    program.get_formatter()->label("SUBCOMMAND", "[COMMAND] FILE...");
    program.require_subcommand(1);
    tableCommand = AddTable(program, table);
    AddExport(program, exported);
    windowCommand = AddWindow(program, window);
  }

  Arguments Parse(Words words) {
    try {
      std::ranges::reverse(words);  // as the parser takes them
      program.parse(std::move(words));
    } catch (const CLI::CallForHelp&) {
      return program.help();  // that of the command, if one is named
    } catch (const CLI::CallForVersion& version) {
      return std::string(version.what()) + "\n";
    }
    if (tableCommand->parsed()) return table;
    if (windowCommand->parsed()) return window;
    return exported;
  }

 private:
  CLI::App program{kAbout, "sequence-index"};
  TableArguments table;
  ExportArguments exported;
  WindowArguments window;
  CLI::App* tableCommand = nullptr;
  CLI::App* windowCommand = nullptr;
};

CommandError MakeCommandError(const CLI::ParseError& error) {
  return CommandError(std::string(error.what()) + "; see sequence-index --help");
}

Arguments Parse(const Words& words) {
  try {
    return CommandLine().Parse(words);
  } catch (const CLI::ParseError& error) {
    throw MakeCommandError(error);
  }
}

/// The command line without a command is that of `table`.
Arguments ParseAsTable(Words words) {
  const std::string first = words.front();
  words.insert(words.begin(), "table");
  try {
    Arguments arguments = CommandLine().Parse(words);
    if (auto* const table = std::get_if<TableArguments>(&arguments)) table->isCommandImplied = true;
    return arguments;
  } catch (const CLI::ParseError& error) {
    // The options may be those of the command that was mistyped.
    if (!first.starts_with('-')) RequireFileOrCommand(first);
    throw MakeCommandError(error);
  }
}

/// The command line without a command as that of `window`; none when it can't be: options of a table,
/// or standard input.
std::optional<WindowArguments> ParseAsWindow(Words words) {
  if (std::ranges::find(words, kStream) != words.end()) return std::nullopt;
  words.insert(words.begin(), "window");
  try {
    const Arguments arguments = CommandLine().Parse(words);
    const auto* const window = std::get_if<WindowArguments>(&arguments);
    return window == nullptr ? std::nullopt : std::optional(*window);
  } catch (const CLI::ParseError&) {
    return std::nullopt;
  }
}

}  // namespace

void RequireFileOrCommand(const std::string& word) {
  std::error_code ignored;
  if (word == "-" || std::filesystem::exists(word, ignored)) return;
  throw CommandError(word, 0, "There is no such file or command; see sequence-index --help");
}

Arguments ParseArguments(int argc, const char* const* argv, bool hasDisplay) {
  const Words words(argv + std::min(argc, 1), argv + argc);
  const bool hasCommand =
      !words.empty() && std::ranges::find(kFirstWords, words.front()) != kFirstWords.end();
  if (hasCommand) return Parse(words);
  if (hasDisplay) {
    if (auto window = ParseAsWindow(words)) {
      for (const std::string& file : window->files) RequireFileOrCommand(file);
      return *std::move(window);
    }
  }
  if (words.empty()) {
    throw CommandError("Usage: sequence-index [COMMAND] FILE...; see sequence-index --help");
  }
  return ParseAsTable(words);
}

}  // namespace standalone
