#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "host/MZ/SequenceIndexOptions.h"
#include "standalone/app/ColumnList.h"
#include "standalone/app/ReadingOptions.h"
#include "standalone/model/TimeFormat.h"

namespace standalone {

/// What every command that shows an index can be asked for.
struct IndexOptions {
  /// What the options dialog behind the panel's filter button is given.
  MZ::SequenceIndex::Options rows;
  /// What is typed into the panel's search field.
  std::string search;
  ColumnChoice columns;
  /// A name or "#N"; none: the first sequence of the file.
  std::optional<std::string> sequence;
  /// None: as each sequence says.
  std::optional<TimeFormat> timeFormat;
  ReadingOptions reading;
};

/// `table FILE...`.
struct TableArguments {
  /// "-" is standard input.
  std::vector<std::string> files;
  IndexOptions options;
  /// In columns of the screen; none: what the output is.
  std::optional<std::size_t> width;
  /// Whether the word "table" was left out, so that the first file may be a mistyped command.
  bool isCommandImplied = false;
};

/// `export FILE -o OUT`.
struct ExportArguments {
  /// The timeline file; "-" is standard input.
  std::string file;
  /// The file to write; "-" is standard output.
  std::string output;
  IndexOptions options;
};

/// `window [FILE...]`.
struct WindowArguments {
  std::vector<std::string> files;
  ReadingOptions reading;
  /// None: as each sequence says.
  std::optional<TimeFormat> timeFormat;
};

/// What the user asked for: a command, or the words that answer the question at once (help, version).
using Arguments = std::variant<TableArguments, ExportArguments, WindowArguments, std::string>;

/// Reads the command line. Without a command, files are opened in a window where there is a display,
/// and shown as a table elsewhere, or when the options are a table's. Throws: CommandError with one
/// sentence when it makes no sense.
Arguments ParseArguments(int argc, const char* const* argv, bool hasDisplay);

/// Throws: CommandError when `word`, given where a command or a file can stand, is no existing file.
void RequireFileOrCommand(const std::string& word);

}  // namespace standalone
