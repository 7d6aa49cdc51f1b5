#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <variant>

#include "standalone/app/Arguments.h"
#include "standalone/app/CommandError.h"
#include "standalone/app/ExportCommand.h"
#include "standalone/app/StandardOutput.h"
#include "standalone/app/TableCommand.h"
#include "standalone/app/WindowCommand.h"

namespace {

constexpr int kDone = 0;
/// The command line, the input or the output is at fault. (1 is kept for commands that find something.)
constexpr int kFailed = 2;

/// A panel that was only looked at has nothing to save, and the system takes its memory back at once:
/// taking it apart row by row would only keep people waiting. Sanitizers, which look for leaks, see it
/// taken apart.
constexpr bool kIsLeavingAtOnce = SEQUENCE_INDEX_LEAVES_AT_ONCE;

int Run(const standalone::TableArguments& arguments) {
  const standalone::PrintedTables printed = standalone::RunTable(arguments);
  const int status = printed.areAllShown ? kDone : kFailed;
  // Nothing waits to be written: the table went out with write(), and std::cerr has no buffer.
  if (kIsLeavingAtOnce) std::_Exit(status);
  return status;
}

int Run(const standalone::ExportArguments& arguments) {
  standalone::RunExport(arguments);
  return kDone;
}

int Run(const standalone::WindowArguments& arguments) {
  return standalone::RunWindow(arguments);
}

int Run(const std::string& words) {
  standalone::WriteToStandardOutput(words);
  return kDone;
}

int Fail(const std::string& line) {
  std::cerr << line << '\n';
  return kFailed;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return std::visit([](const auto& wish) { return Run(wish); },
                      standalone::ParseArguments(argc, argv, standalone::HasDisplay()));
  } catch (const standalone::CommandError& error) {
    return Fail(error.GetLine());
  } catch (const std::exception& failure) {
    return Fail(standalone::MakeReportLine({}, 0, failure.what()));
  }
}
