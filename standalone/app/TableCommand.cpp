#include "standalone/app/TableCommand.h"

#include <exception>
#include <iostream>
#include <memory>
#include <string>

#include "standalone/app/CommandError.h"
#include "standalone/app/CommandMemory.h"
#include "standalone/app/DisplayText.h"
#include "standalone/app/PanelSetUp.h"
#include "standalone/app/PanelTable.h"
#include "standalone/app/StandardOutput.h"
#include "standalone/app/Terminal.h"
#include "standalone/app/TextTable.h"

namespace standalone {

namespace {

/// Prints tables one after the other.
class TablePrinter {
 public:
  explicit TablePrinter(const TableArguments& arguments)
      : terminal(GetOutputTerminal()), isNaming(arguments.files.size() > 1) {
    if (arguments.width) terminal.width = arguments.width;
  }

  void Print(const std::string& file, const IndexSession& session) {
    PanelTable source(session.GetTree());
    TextTable table(source, terminal.width, terminal.colors);
    SayWhatIsLeftOut(file, table.CountOmittedColumns(), source.GetColumns().size());
    OutputBuffer output;
    if (isNaming) AddName(output, file);
    table.Print([&output](std::string_view line) { output.Add(line); });
    output.Flush();
    isFirst = false;
  }

 private:
  void SayWhatIsLeftOut(const std::string& file, std::size_t omitted, std::size_t all) const {
    if (omitted == 0) return;
    const std::string sentence = std::to_string(omitted) + " of " + std::to_string(all) +
                                 " columns do not fit into " + std::to_string(*terminal.width) +
                                 "; give --width or fewer --columns";
    std::cerr << MakeReportLine(isNaming ? file : "", 0, sentence) << '\n';
  }

  void AddName(OutputBuffer& output, const std::string& file) const {
    std::string buffer;
    if (!isFirst) output.Add("\n");
    output.Add(MakeShowable(file, buffer));
    output.Add(":\n");
  }

  OutputTerminal terminal;
  const bool isNaming;
  bool isFirst = true;
};

/// Shows a file in the panel; false, with a line on standard error, when it can't be shown.
bool ShowFile(IndexSession& session, DocumentReader& reader, const std::string& file,
              const IndexOptions& options) {
  try {
    ShowTimeline(session, reader, file, options);
    return true;
  } catch (const CommandError& error) {
    std::cerr << error.GetLine() << '\n';
  } catch (const std::exception& failure) {
    std::cerr << MakeReportLine(file, 0, failure.what()) << '\n';
  }
  return false;
}

bool RunFile(const std::string& file, const TableArguments& arguments, DocumentReader& reader,
             TablePrinter& printer, std::unique_ptr<IndexSession>& session) {
  try {
    // One for each file; a second one can't begin before the first is gone.
    session.reset();
    session = std::make_unique<IndexSession>(arguments.options.reading.isProbing);
    SetUpPanel(*session, arguments.options);
    if (!ShowFile(*session, reader, file, arguments.options)) return false;
    printer.Print(file, *session);
    return true;
  } catch (const std::exception& failure) {
    throw CommandError(file, 0, failure.what());
  }
}

/// The first file may be a mistyped command.
bool IsThere(const std::string& word) {
  try {
    RequireFileOrCommand(word);
    return true;
  } catch (const CommandError& error) {
    std::cerr << error.GetLine() << '\n';
    return false;
  }
}

}  // namespace

PrintedTables RunTable(const TableArguments& arguments) {
  KeepMemoryBetweenSteps();
  DocumentReader reader(arguments.options.reading);
  TablePrinter printer(arguments);
  PrintedTables printed;
  for (const std::string& file : arguments.files) {
    const bool mayBeCommand = arguments.isCommandImplied && &file == &arguments.files.front();
    const bool isShown =
        (!mayBeCommand || IsThere(file)) && RunFile(file, arguments, reader, printer, printed.session);
    printed.areAllShown = printed.areAllShown && isShown;
  }
  return printed;
}

}  // namespace standalone
