#include "standalone/app/Arguments.h"

#include <CLI/CLI.hpp>
#include <map>

#include "standalone/app/CommandError.h"

namespace standalone {

namespace {

constexpr const char* kAbout =
    "Sequence Index shows the clips and gaps of a timeline as a table.\n"
    "It opens OpenTimelineIO files (.otio).";

constexpr const char* kEpilogue =
    "Examples:\n"
    "  sequence-index export cut.otio -o cut.csv\n"
    "  sequence-index export cut.otio --gaps --columns all -o -\n"
    "\n"
    "Exit codes: 0 done; 2 the command line, the input or the output is at fault.";

void AddExport(CLI::App& program, ExportArguments& arguments) {
  CLI::App* const command =
      program.add_subcommand("export", "Write the index of a timeline as comma-separated values");
  command->add_option("FILE", arguments.file, "The timeline file; - reads standard input")->required();
  command->add_option("-o,--output", arguments.output, "The file to write; - writes to standard output")
      ->required()
      ->type_name("OUT.csv");
  command->add_flag("--gaps", arguments.isKeepingGaps, "Keep a row for every gap, not only for clips");
  const std::map<std::string, ColumnChoice> choices{{"default", ColumnChoice::kDefault},
                                                    {"all", ColumnChoice::kAll}};
  command
      ->add_option_function<std::string>(
          "--columns",
          [&arguments, choices](const std::string& name) { arguments.columns = choices.at(name); },
          "The columns to write: default (8) or all (26)")
      ->check(CLI::IsMember({"default", "all"}))
      ->type_name("default|all");
}

}  // namespace

Arguments ParseArguments(int argc, const char* const* argv) {
  CLI::App program(kAbout, "sequence-index");
  program.set_version_flag("--version", "sequence-index " SEQUENCE_INDEX_VERSION);
  program.footer(kEpilogue);
  program.get_formatter()->label("SUBCOMMAND", "COMMAND");
  program.require_subcommand(1);
  ExportArguments exportArguments;
  AddExport(program, exportArguments);
  try {
    program.parse(argc, argv);
  } catch (const CLI::CallForHelp&) {
    const auto chosen = program.get_subcommands();
    return chosen.empty() ? program.help() : chosen.front()->help();
  } catch (const CLI::CallForVersion& version) {
    return std::string(version.what()) + "\n";
  } catch (const CLI::ParseError& error) {
    throw CommandError(std::string(error.what()) + "; see sequence-index --help");
  }
  return exportArguments;
}

}  // namespace standalone
