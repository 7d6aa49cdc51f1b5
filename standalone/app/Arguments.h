#pragma once

#include <string>
#include <variant>

namespace standalone {

/// Which columns a command writes.
enum class ColumnChoice {
  kAsShown,  ///< What the panel shows by itself.
  kDefault,  ///< "Show Default Columns".
  kAll,      ///< "Show All Columns".
};

/// `export FILE -o OUT`.
struct ExportArguments {
  /// The timeline file; "-" is standard input.
  std::string file;
  /// The file to write; "-" is standard output.
  std::string output;
  bool isKeepingGaps = false;
  ColumnChoice columns = ColumnChoice::kAsShown;
};

/// What the user asked for: a command, or the words that answer the question at once (help, version).
using Arguments = std::variant<ExportArguments, std::string>;

/// Reads the command line. Throws: CommandError with one sentence when it makes no sense.
Arguments ParseArguments(int argc, const char* const* argv);

}  // namespace standalone
